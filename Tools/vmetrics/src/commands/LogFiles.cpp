#include "LogFiles.h"

#include <fmt/format.h>

#include "Operands.h"
#include "Progress.h"
#include "Text.h"

namespace vmetrics {

void LogFiles::AddTo(CLI::App& command) {
  AddOperands(command, "file", "FILE", names_,
              "Metrics logs, plain or compressed by gzip; - or none is standard input");
}

std::vector<std::string> LogFiles::Names() const {
  return names_.empty() ? std::vector<std::string>{"-"} : names_;
}

void LogFiles::Read(LogReader::Hooks hooks) {
  RefuseStandardInputTwice(names_);
  Progress progress;
  hooks.progress = [&progress](const Input& input) { progress.Show(input); };
  hooks.unreadable = [this](const InputError& error) {
    Complain(Printable(error.what()));
    isUnreadable_ = true;
  };
  hooks.damaged = [this, tell = std::move(hooks.damaged)](const LinePlace& place,
                                                          std::string_view line) {
    damaged_.Add(place);
    if (tell) {
      tell(place, line);
    }
  };
  hooks.overlong = [this, tell = std::move(hooks.overlong)](const LinePlace& place) {
    overlong_.Add(place);
    if (tell) {
      tell(place);
    }
  };
  LogReader reader(std::move(hooks));
  reader.Read(names_);
  counts_ = reader.Counts();
}

int LogFiles::Conclude(int status) const {
  FinishOutput();
  if (damaged_.count > 0) {
    Complain(fmt::format("{}: {} recovered, {} left out; vmetrics check shows each",
                         damaged_.Described("damaged line"), Counted(counts_.recovered, "record"),
                         Counted(counts_.fragments, "fragment")));
  }
  if (overlong_.count > 0) {
    Complain(fmt::format("{} of more than {} bytes left out", overlong_.Described("line"),
                         LineCutter::kLongestLine));
  }
  return StatusOf(status);
}

void LogFiles::Lines::Add(const LinePlace& place) {
  if (count++ == 0) {
    first = fmt::format("{}:{}", Printable(place.file), place.number);
  }
}

std::string LogFiles::Lines::Described(std::string_view kind) const {
  return fmt::format("{} ({}{})", Counted(count, kind), count == 1 ? "" : "the first: ", first);
}

}  // namespace vmetrics
