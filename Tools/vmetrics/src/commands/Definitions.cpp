#include "Definitions.h"

#include <fmt/format.h>

#include "LineCutter.h"
#include "Operands.h"
#include "Terminal.h"
#include "Text.h"
#include "VMetrics.h"

namespace vmetrics {

namespace {

std::string_view WithoutByteOrderMark(std::string_view line, std::uint64_t number) {
  const bool hasMark = number == 1 && line.substr(0, kByteOrderMark.size()) == kByteOrderMark;
  return hasMark ? line.substr(kByteOrderMark.size()) : line;
}

/// The line of a file that was written under another system.
std::string_view WithoutCarriageReturn(std::string_view line) {
  return !line.empty() && line.back() == '\r' ? line.substr(0, line.size() - 1) : line;
}

/// Whether the line, without a byte order mark, is none of those that define something.
bool IsPassedOver(std::string_view line) {
  return line.find_first_not_of(" \t\r") == std::string_view::npos || line.front() == '#';
}

void Read(const DefinitionFile& file, const TakeDefinition& take,
          const std::function<void(const LinePlace&)>& overlong) {
  Input input(file.name);
  LineCutter cutter;
  std::uint64_t overlongSoFar = 0;
  std::uint64_t number = 0;
  const auto tellOverlong = [&] {
    for (; overlongSoFar < cutter.Overlong(); ++overlongSoFar) {
      overlong({input.Name(), ++number});
    }
  };
  const auto takeLine = [&](std::string_view line) {
    tellOverlong();
    ++number;
    if (!IsPassedOver(WithoutByteOrderMark(line, number))) {
      take({input.Name(), number}, line);
    }
  };
  for (std::string_view piece = input.Read(); !piece.empty(); piece = input.Read()) {
    cutter.Add(piece, takeLine);
  }
  cutter.Finish(takeLine);
  tellOverlong();
}

}  // namespace

void ReadDefinitions(const DefinitionFile& file, const TakeDefinition& take,
                     const std::function<void(const LinePlace&)>& overlong) {
  try {
    Read(file, take, overlong);
  } catch (const InputError& error) {
    throw InputError(Printable(error.what()));
  }
}

void Definitions::AddTo(CLI::App& command) {
  command
      .add_option("--definitions", numeric_,
                  "Add the metrics of FILE, \"ID;type;name;private\" a line; may be repeated")
      ->option_text("FILE")
      ->allow_extra_args(false);
  command.add_option("--event-definitions", events_, "The same for metrics with an event ID")
      ->option_text("FILE")
      ->allow_extra_args(false);
}

void Definitions::Register(const std::vector<std::string>& others) {
  RefuseStandardInputTwice(others);
  const auto complain = [this](const LinePlace& place, std::string_view reason) {
    Complain(fmt::format("{}:{}: {}", Printable(place.file), place.number, reason));
    hasRefused_ = true;
  };
  for (const DefinitionFile& file : Files()) {
    const auto add = [&](const LinePlace& place, std::string_view line) {
      const std::string_view text = WithoutCarriageReturn(WithoutByteOrderMark(line, place.number));
      if (RegisterDefinition(file.kind, text) != VMETRICS_OK) {
        complain(place, RefusalOf(file.kind, text));
      }
    };
    ReadDefinitions(file, add, [&](const LinePlace& place) {
      complain(place, fmt::format("the line has more than {} bytes", LineCutter::kLongestLine));
    });
  }
}

void Definitions::RefuseStandardInputTwice(std::vector<std::string> others) const {
  for (const DefinitionFile& file : Files()) {
    others.push_back(file.name);
  }
  vmetrics::RefuseStandardInputTwice(others);
}

int Definitions::Conclude(int status) const { return hasRefused_ ? kTrouble : status; }

std::vector<DefinitionFile> Definitions::Files() const {
  std::vector<DefinitionFile> files;
  for (const std::string& name : numeric_) {
    files.push_back({DefinitionKind::kNumeric, name});
  }
  for (const std::string& name : events_) {
    files.push_back({DefinitionKind::kEvent, name});
  }
  return files;
}

}  // namespace vmetrics
