#include "LogFiles.h"

#include <fmt/format.h>

#include "Operands.h"
#include "Progress.h"
#include "Terminal.h"
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
  hooks.unreadable = [this, &progress](const InputError& error) {
    progress.Clear();
    Complain(Printable(error.what()));
    isUnreadable_ = true;
  };
  LogReader reader(std::move(hooks));
  reader.Read(names_);
  counts_ = reader.Counts();
  overlong_ = reader.Overlong();
}

int LogFiles::Conclude(int status) const {
  FinishOutput();
  if (counts_.recovered > 0 || counts_.fragments > 0) {
    Complain(fmt::format("{} recovered from damaged lines, {} without any left out",
                         Counted(counts_.recovered, "record"),
                         Counted(counts_.fragments, "fragment")));
  }
  if (overlong_ > 0) {
    Complain(fmt::format("{} of more than {} bytes left out", Counted(overlong_, "line"),
                         LineCutter::kLongestLine));
  }
  return isUnreadable_ ? kTrouble : status;
}

}  // namespace vmetrics
