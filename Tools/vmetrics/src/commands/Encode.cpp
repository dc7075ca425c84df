#include <fmt/format.h>
#include <unistd.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Command.h"
#include "Definitions.h"
#include "MetricId.h"
#include "MetricLookup.h"
#include "Operands.h"
#include "records/EncodeArguments.h"
#include "records/RecordHex.h"
#include "records/RecordKind.h"
#include "records/RecordPacking.h"

namespace vmetrics {

namespace {

void RefuseOptions(const std::vector<CLI::Option*>& options, std::string_view needed) {
  for (const CLI::Option* option : options) {
    if (option->count() > 0) {
      throw UsageError(fmt::format("{} needs {}", option->get_name(), needed));
    }
  }
}

class Encode {
 public:
  void AddTo(CLI::App& command);
  int Run();

 private:
  void AddHeaderOptions(CLI::App& command);
  void AddNumber(CLI::App& command, const std::string& name, std::uint32_t& number,
                 const std::string& description, std::vector<CLI::Option*>* group = nullptr);
  const MetricEntry* TakeId();
  std::vector<std::string> Values(const MetricEntry* metric) const;
  std::string Packed(const std::string& value) const;

  std::string id_;
  std::vector<std::string> texts_;
  std::vector<std::string> raw_;
  bool isString_ = false;
  bool isMessage_ = false;
  bool isHex_ = false;
  RecordHeader header_;
  std::vector<CLI::Option*> stringOptions_;
  std::vector<CLI::Option*> messageOptions_;
  Definitions definitions_;

  RecordKind kind_ = RecordKind::kNumeric;
};

void Encode::AddTo(CLI::App& command) {
  command
      .add_option("id", id_,
                  "The metric: a number in decimal or, behind 0x, in hexadecimal; or an event ID")
      ->required()
      ->type_name("ID");
  AddOperands(command, "value", "VALUE", texts_,
              "Its value, as the metric's type asks; each makes a record. Behind -- it may begin "
              "with a dash");
  command
      .add_option("--raw", raw_,
                  "The value as bytes in hexadecimal, whatever the metric's type and whether the "
                  "catalogue has it or not; may be given again")
      ->option_text("HEX")
      ->allow_extra_args(false);
  command.add_flag("--hex", isHex_,
                   "Write hexadecimal digits with comments, as decode --hex reads them");
  command.add_flag("--string", isString_, "ID is an event ID even if it looks like a number");
  command.add_flag("--message", isMessage_, "Put the record into an IPC message (VMessage)");
  AddHeaderOptions(command);
  definitions_.AddTo(command);
}

void Encode::AddHeaderOptions(CLI::App& command) {
  AddNumber(command, "--terminal", header_.terminalId, "The number of the terminal");
  AddNumber(command, "--type", header_.type, "The type code of a record with an event ID",
            &stringOptions_);
  const auto addText = [&](const std::string& name, std::string& text, const std::string& what) {
    stringOptions_.push_back(command.add_option(name, text, what + " of a record with an event ID")
                                 ->option_text("TEXT"));
  };
  addText("--user", header_.userName, "The user name");
  addText("--transaction", header_.transactionId, "The transaction ID");
  addText("--business-type", header_.businessType, "The business type");
  addText("--service", header_.serviceName, "The service name");
  AddNumber(command, "--source-module", header_.sourceModule, "The module that sends the message",
            &messageOptions_);
  AddNumber(command, "--destination-module", header_.destinationModule,
            "The module that the message is meant for", &messageOptions_);
  AddNumber(command, "--message-type", header_.messageType, "The kind of message",
            &messageOptions_);
}

void Encode::AddNumber(CLI::App& command, const std::string& name, std::uint32_t& number,
                       const std::string& description, std::vector<CLI::Option*>* group) {
  const auto take = [name, &number](const std::string& text) { number = WordOf(name, text); };
  CLI::Option* option =
      command.add_option_function<std::string>(name, take, description)->option_text("N");
  if (group != nullptr) {
    group->push_back(option);
  }
}

int Encode::Run() {
  if (!isHex_ && isatty(STDOUT_FILENO) == 1) {
    throw UsageError("a record is no text for a terminal: use --hex, or send it elsewhere");
  }
  definitions_.Register();
  const MetricEntry* metric = TakeId();
  std::string all;
  for (const std::string& value : Values(metric)) {
    if (value.size() > kLongestRenderedValue) {
      throw UsageError(fmt::format("a value has {} bytes; {} are the most that is rendered",
                                   value.size(), kLongestRenderedValue));
    }
    const std::string record = Packed(value);
    all += isHex_ ? RecordAsHex(kind_, record) : record;
  }
  Write(all);
  return definitions_.Conclude(kSuccess);
}

/// Finds out what kind of record is asked for. Returns the catalogue's entry, if there is one.
const MetricEntry* Encode::TakeId() {
  const std::optional<int> number = isString_ ? std::nullopt : ParseMetricId(id_);
  if (number) {
    RefuseOptions(stringOptions_, "an event ID");
    kind_ = isMessage_ ? RecordKind::kMessage : RecordKind::kNumeric;
    header_.metricId = static_cast<std::uint32_t>(*number);
  } else {
    if (isMessage_) {
      throw UsageError(fmt::format("--message needs a metric with a number, not \"{}\"", id_));
    }
    kind_ = RecordKind::kString;
    header_.eventId = id_;
  }
  if (!isMessage_) {
    RefuseOptions(messageOptions_, "--message");
  }
  const MetricEntry* metric = number ? FindNumericMetric(*number) : FindEventMetric(id_);
  if (metric == nullptr && raw_.empty()) {
    throw UsageError(
        fmt::format("there is no {}\"{}\" in the catalogue, so the type of its value is unknown: "
                    "name a file of {}definitions, or give bytes by --raw",
                    number ? "metric " : "event ID ", id_, number ? "--" : "--event-"));
  }
  return metric;
}

std::vector<std::string> Encode::Values(const MetricEntry* metric) const {
  if (texts_.empty() == raw_.empty()) {
    throw UsageError(raw_.empty() ? "a value is missing" : "there are both values and --raw");
  }
  std::vector<std::string> values;
  for (const std::string& text : texts_) {
    values.push_back(ValueOf(id_, *metric, text));
  }
  for (const std::string& digits : raw_) {
    values.push_back(BytesOf(digits));
  }
  return values;
}

std::string Encode::Packed(const std::string& value) const {
  switch (kind_) {
    case RecordKind::kString:
      return PackedString(header_, value);
    case RecordKind::kMessage:
      return PackedMessage(header_, value);
    case RecordKind::kNumeric:
      break;
  }
  return PackedNumeric(header_, value);
}

}  // namespace

void AddEncode(CLI::App& program, Action& action) {
  CLI::App* command =
      program.add_subcommand("encode", "Writes packed records, as decode reads them");
  const auto encode = std::make_shared<Encode>();
  encode->AddTo(*command);
  command->footer(
      "Example:\n"
      "  vmetrics encode 302645249 60 | vmetrics decode");
  command->callback([&action, encode] { action = [encode] { return encode->Run(); }; });
}

}  // namespace vmetrics
