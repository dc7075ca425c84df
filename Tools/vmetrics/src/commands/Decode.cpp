#include <fmt/format.h>
#include <unistd.h>

#include <memory>
#include <string>
#include <vector>

#include "Command.h"
#include "Definitions.h"
#include "Operands.h"
#include "Progress.h"
#include "Text.h"
#include "records/ByteSource.h"
#include "records/Explanation.h"
#include "records/RecordCutter.h"
#include "records/RecordFault.h"

namespace vmetrics {

namespace {

class Decode {
 public:
  void AddTo(CLI::App& command);
  int Run();

 private:
  void DecodeFile(const std::string& name);
  void Take(const FoundRecord& record);
  void TakeRest(const FoundRecord& record);
  void WriteLine(std::string_view line) const;
  void Tell(const FoundRecord& record, std::string_view line, const std::string& fault);

  bool isNumeric_ = false;
  bool isString_ = false;
  bool isMessage_ = false;
  bool isHex_ = false;
  bool explains_ = false;
  std::vector<std::string> files_;
  Definitions definitions_;

  const bool isTerminal_ = isatty(STDOUT_FILENO) == 1;
  RecordKind kind_ = RecordKind::kNumeric;
  Progress progress_;
  int status_ = kSuccess;
};

void Decode::AddTo(CLI::App& command) {
  command.add_flag("--numeric", isNumeric_,
                   "The records have numeric IDs (VMetricsData); the default");
  command.add_flag("--string", isString_, "The records have event IDs (VMetricsDataString)");
  command.add_flag("--message", isMessage_,
                   "The records are IPC messages (VMessage) that carry one with a numeric ID each");
  command.add_flag("--hex", isHex_,
                   "The input is hexadecimal digits, with white space anywhere and comments from # "
                   "to the end of a line");
  command.add_flag("--explain", explains_,
                   "Show each field with its offset, bytes and meaning, then the line, then why "
                   "there is none or what it lacks");
  definitions_.AddTo(command);
  AddOperands(command, "file", "FILE", files_,
              "Packed records one after the other, plain or compressed by gzip; - or none is "
              "standard input");
}

int Decode::Run() {
  if (isNumeric_ + isString_ + isMessage_ > 1) {
    throw UsageError("decode takes one of --numeric, --string and --message");
  }
  const std::vector<std::string> files = files_.empty() ? std::vector<std::string>{"-"} : files_;
  definitions_.Register(files);
  kind_ = isString_    ? RecordKind::kString
          : isMessage_ ? RecordKind::kMessage
                       : RecordKind::kNumeric;
  for (const std::string& file : files) {
    try {
      DecodeFile(file);
    } catch (const InputError& error) {
      FinishOutput();
      Complain(Printable(error.what()));
      status_ = kTrouble;
    }
  }
  return definitions_.Conclude(status_);
}

void Decode::DecodeFile(const std::string& name) {
  ByteSource source(name, isHex_);
  RecordCutter cutter(kind_);
  const std::string& file = source.File().Name();
  std::uint64_t number = 0;
  const auto take = [&](std::string_view bytes) { Take({file, ++number, cutter.Offset(), bytes}); };
  std::string_view piece;
  while (!cutter.IsLost() && !(piece = source.Read()).empty()) {
    cutter.Add(piece, take);
    if (!isTerminal_) {  // Where the lines themselves show that something happens.
      progress_.Show(source.File());
    }
  }
  if (!cutter.Rest().empty()) {
    TakeRest({file, ++number, cutter.Offset(), cutter.Rest()});
  }
}

void Decode::Take(const FoundRecord& record) {
  const std::string line = Render(kind_, record.bytes.data());
  const std::string fault = FaultOf(kind_, record.bytes, line);
  if (explains_ || !fault.empty()) {
    Tell(record, line, fault);
    return;
  }
  WriteLine(line);
}

void Decode::TakeRest(const FoundRecord& record) {
  Tell(record, {}, FaultOfRest(kind_, record.bytes));
}

/// What a terminal would obey is an escape there, which is the same to whoever reads the JSON.
void Decode::WriteLine(std::string_view line) const {
  if (isTerminal_) {
    Write(Printable(line));
  } else {
    Write(line);
  }
  Write("\n");
}

void Decode::Tell(const FoundRecord& record, std::string_view line, const std::string& fault) {
  if (explains_) {
    Explain(kind_, record, line, fault);
  } else {
    if (!line.empty()) {
      WriteLine(line);
    }
    FinishOutput();  // So that the complaint stands where it belongs when both go to one place.
    Complain(fmt::format("{}: record {} at byte {} {}", Printable(record.file), record.number,
                         record.offset, fault));
  }
  if (!fault.empty() && status_ == kSuccess) {
    status_ = kFindings;
  }
}

}  // namespace

void AddDecode(CLI::App& program, Action& action) {
  CLI::App* command = program.add_subcommand(
      "decode", "Shows packed records as the lines that the library makes of them");
  const auto decode = std::make_shared<Decode>();
  decode->AddTo(*command);
  command->footer(
      "Example:\n"
      "  vmetrics encode 302645249 60 | vmetrics decode --explain");
  command->callback([&action, decode] { action = [decode] { return decode->Run(); }; });
}

}  // namespace vmetrics
