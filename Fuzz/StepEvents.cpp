// Sequences of step events, with locks refused and writes cut short on the way.
//
// The library's table of transactions lives as long as the process, and so does the model. The
// transactions of an input are its own; only how many there are of earlier ones is left over, and
// the hundred and first makes the library forget all.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "FakePlatform.h"
#include "Input.h"
#include "SpanIdentifierForm.h"
#include "StepModel.h"
#include "VMetrics.h"
#include "Verdict.h"

namespace {

/// A text as a C string carries it; null for two lengths in 256.
std::optional<std::string> Argument(Input& input) {
  const std::uint8_t choice = input.Byte();
  if (choice < 8) {
    return std::string(1, static_cast<char>('a' + choice));
  }
  if (choice >= 254) {
    return std::nullopt;
  }
  return input.Text().c_str();
}

std::optional<std::string> Parent(Input& input) {
  return input.Byte() % 2 == 0 ? "ParentSpanId" : Argument(input);
}

StepEvent NextEvent(Input& input, const std::string& run) {
  StepEvent event;
  const std::uint8_t how = input.Byte();
  event.status = how % 8 < 3 ? 0 : how % 8 < 7 ? 1 : input.Int();
  event.refuseFirstLock = how % 64 / 8 == 1 || how % 64 / 8 == 3;
  event.refuseSecondLock = how % 64 / 8 == 2 || how % 64 / 8 == 3;
  event.writeLimit = how / 64 == 3 ? input.Byte() % 38 - 1 : 36;
  event.transaction = Argument(input);
  if (event.transaction.has_value() && !event.transaction->empty()) {
    event.transaction->insert(0, run);
  }
  event.event = Argument(input);
  event.step = how / 64 == 2 ? "create rds" : Argument(input);
  event.parent = Parent(input);
  event.errorCode = input.Byte() - 2;
  event.tick = input.Number(3) << 20;
  event.endTick = event.tick + input.Byte();
  return event;
}

const char* Text(const std::optional<std::string>& text) {
  return text.has_value() ? text->c_str() : nullptr;
}

/// The library's files and those of the model are the same; each event begins with an empty log.
void PreparePlatform(const StepEvent& event, const StepModel& model) {
  FakePlatform::Reset();
  if (model.file.has_value()) {
    FakePlatform::Files()["spanId"] = *model.file;
  }
  FakePlatform::ScriptTicks({event.tick, event.endTick});
  FakePlatform::LimitWrites(event.writeLimit);
  if (event.refuseFirstLock || event.refuseSecondLock) {
    FakePlatform::RefuseLocks(event.refuseFirstLock ? 1 : 2, event.refuseSecondLock ? 2 : 1);
  }
}

/// The text with the placeholder where the identifier stands, which it hands out.
std::string WithoutIdentifier(std::string line, std::string& identifier) {
  constexpr std::string_view kKey = ",\"spanId\":\"";
  const std::size_t place = line.find(kKey);
  Require(place != std::string::npos, "an identifier");
  identifier = line.substr(place + kKey.size(), 36);
  Require(IsSpanIdentifier(identifier), "the identifier's form");
  return line.replace(place + kKey.size(), 36, StepModel::kIdentifier);
}

void RequireFile(const StepModel& model) {
  const auto found = FakePlatform::Files().find("spanId");
  Require((found != FakePlatform::Files().end()) == model.file.has_value(), "a span file");
  if (model.file.has_value()) {
    RequireEqual(found->second, *model.file, "the span file");
  }
}

void RequireLogged(const std::vector<std::string>& expected) {
  Require(FakePlatform::LogLines().size() == expected.size(), "the number of lines logged");
  for (std::size_t i = 0; i < expected.size(); ++i) {
    RequireEqual(FakePlatform::LogLines()[i].message, expected[i], "what is logged");
  }
}

void Handle(const StepEvent& event, StepModel& model) {
  PreparePlatform(event, model);
  const StepOutcome expected = model.Handle(event);
  const int status =
      VMetrics::InsertRecord(event.status, Text(event.transaction), Text(event.event),
                             Text(event.step), Text(event.parent), event.errorCode);
  Require(status == expected.status, "the status");
  RequireLogged(expected.logged);
  Require(FakePlatform::FileOperations() == expected.fileOperations, "the lock sessions");
  Require(FakePlatform::MetricsLines().size() == (expected.line.empty() ? 0 : 1),
          "the number of lines");
  std::string identifier;
  if (!expected.line.empty()) {
    RequireLine(WithoutIdentifier(FakePlatform::MetricsLines()[0].text, identifier), expected.line,
                expected.keys);
  }
  if (expected.written.has_value()) {
    model.file = identifier.substr(0, *expected.written);
  }
  RequireFile(model);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static StepModel& model = *new StepModel;
  static unsigned long runs = 0;
  const std::string run = std::to_string(++runs) + ":";
  Input input(data, size);
  const std::uint8_t begin = input.Byte();
  model.file = begin % 2 == 0 ? std::nullopt : std::optional(input.Text());
  for (int events = 0; events < 24 && !input.IsEmpty(); ++events) {
    Handle(NextEvent(input, run), model);
  }
  return 0;
}
