// What the span file can hold, read by itself and by the end of a step.

#include <cstddef>
#include <cstdint>
#include <string>

#include "FakePlatform.h"
#include "Input.h"
#include "SpanIdentifierForm.h"
#include "StepModel.h"
#include "TextModel.h"
#include "VMetrics.h"
#include "Verdict.h"

namespace {

void ReadAlone(const std::string& content, bool refused) {
  const std::string expected = refused ? "ParentSpanId" : SpanFileText(content);
  RequireEqual(VMetrics::GetCurrentParentSpanId(), expected, "the parent");
  Require(FakePlatform::LogLines().size() == (refused ? 0 : 1), "one line logged, if any");
  if (!refused) {
    RequireEqual(FakePlatform::LogLines()[0].message, "parentSpanId = " + expected,
                 "what is logged");
  }
  RequireEqual(FakePlatform::Files()["spanId"], content, "the span file");
}

/// The line of a step whose parent comes from the file, up to its arguments.
void EndStep(const std::string& parent) {
  VMetrics::InsertRecord(0, "t", "e", "s", "ParentSpanId", 0);
  Require(VMetrics::InsertRecord(1, "t", "e", "s", "ParentSpanId", 0) == VMETRICS_OK,
          "the step's end");
  const std::string identifier = FakePlatform::Files()["spanId"];
  Require(IsSpanIdentifier(identifier), "the identifier alone");
  const std::string tick = std::to_string(FakePlatform::kFirstTick);
  RequireLine(FakePlatform::MetricsLines().at(0).text,
              R"({"eventId":"e","timestamp":)" + tick +
                  R"(,"terminalId":"0","type":"2","transactionId":"t","spanId":")" + identifier +
                  "\"" + (parent.empty() ? "" : ",\"parentSpanId\":" + Oracle::Quoted(parent)) +
                  R"(,"args":{"stepName":"s","errorCode":0,"isSuccess":1,"startTime":)" + tick +
                  ",\"endTime\":" + tick + ",\"usedTime\":0}}",
              std::string("eventId,timestamp,terminalId,type,transactionId,spanId,") +
                  (parent.empty() ? "" : "parentSpanId,") + "args");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  FakePlatform::Reset();
  const std::uint8_t how = input.Byte();
  const bool refused = how % 8 == 7;
  const std::string content = how % 8 == 6 ? input.Text() : input.Rest();
  FakePlatform::Files()["spanId"] = content;
  if (refused) {
    FakePlatform::RefuseLocks(1, 2);  // Those of reading alone, and of the end of a step.
  }
  ReadAlone(content, refused);
  EndStep(refused ? "ParentSpanId" : SpanFileText(content));
  return 0;
}
