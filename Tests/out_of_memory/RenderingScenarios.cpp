#include <string>

#include "Host.h"
#include "Records.h"
#include "Scenario.h"
#include "VIpc.h"

namespace {

constexpr char kToStringById[] = "VMetrics::ToString(int, char const*)";
constexpr char kToStringByEvent[] = "VMetrics::ToString(char const*, char const*)";
constexpr char kNumeric[] = "VMetrics::GetBaseMetricsString(VMetricsData const*)";
constexpr char kText[] = "VMetrics::GetStringBaseMetricsString(VMetricsDataString const*)";
constexpr char kMessage[] = "VMetrics::FmtMetricsMsgToString(VMessage const*)";
constexpr char kCheckedText[] = "VMetrics::StringFmtMetricsMsgToString(VMetricsDataString const*)";

const std::string kLongText(2000, 'x');
const std::string kSpacedJson = R"({ "a" : [ ")" + kLongText + R"(", { "b" : 1.5 } ] })";
const std::string kCompactJson = R"({"a":[")" + kLongText + R"(",{"b":1.5}]})";

TextRecord RecordOf(const std::string& eventId, const std::string& value) {
  TextRecord record;
  record.eventId = eventId;
  record.userName = kName;
  record.transactionId = kName;
  record.businessType = "a type too long for it";
  record.serviceName = "a service too long for it";
  record.value = value;
  return record;
}

/// The bytes that the calls read, made while there is memory.
struct Prepared {
  std::string text = NumericRecord(7, kTextMetric, kLongText);
  std::string number = NumericRecord(7, kIntMetric, ValueBytes(60));
  std::string json = NumericRecord(7, kJsonMetric, kSpacedJson);
  std::string noJson = NumericRecord(7, kJsonMetric, "[" + kLongText);
  std::string unknown = NumericRecord(7, 1, kLongText);
  std::string longest = NumericRecord(7, kTextMetric, std::string(65535, 'x'));
  std::string tooLong = NumericRecord(7, kTextMetric, std::string(65536, 'x'));
  std::string message = Message(1, 2, 3, text);
  std::string jsonMessage = Message(1, 2, 3, json);
  std::string tooLongMessage = Message(1, 2, 3, NumericRecord(7, kTextMetric, 65537, ""));
  std::string textEvent = RecordOf(kTextEvent, kLongText).Bytes();
  std::string jsonEvent = RecordOf(kJsonEvent, kSpacedJson).Bytes();
  std::string unknownEvent = RecordOf("an event that nobody has registered", "{}").Bytes();
  std::string emptyEvent = RecordOf(kTextEvent, "").Bytes();
  std::string number60 = ValueBytes(60);
  std::string fraction = ValueBytes(-1.7976931348623157e308);
};

const Prepared& ThePrepared() {
  static const Prepared prepared;
  return prepared;
}

template <std::string Prepared::*bytes>
std::string RenderNumeric() {
  return VMetrics::GetBaseMetricsString(
      reinterpret_cast<const VMetricsData*>((ThePrepared().*bytes).data()));
}

template <std::string Prepared::*bytes>
std::string RenderMessage() {
  return VMetrics::FmtMetricsMsgToString(
      reinterpret_cast<const VMessage*>((ThePrepared().*bytes).data()));
}

template <std::string Prepared::*bytes>
std::string RenderText() {
  return VMetrics::GetStringBaseMetricsString(
      reinterpret_cast<const VMetricsDataString*>((ThePrepared().*bytes).data()));
}

template <std::string Prepared::*bytes>
std::string RenderCheckedText() {
  return VMetrics::StringFmtMetricsMsgToString(
      reinterpret_cast<const VMetricsDataString*>((ThePrepared().*bytes).data()));
}

/// What a metric's value is read from; made before memory runs out.
void PrepareBytes() { ThePrepared(); }

std::string NumericLine(int metric, const std::string& arguments) {
  return R"({"eventId":")" + std::to_string(metric) + R"(","timestamp":1700000000000,"moduleId":)" +
         std::to_string(metric >> 16) + R"(,"terminalId":"7")" + arguments + "}";
}

std::string TextLine(const std::string& event, const std::string& arguments) {
  return R"({"eventId":")" + event + R"(","timestamp":1700000000000,"terminalId":"0","type":"0",)" +
         R"("transactionId":")" + kName + R"(","businessType":"a type too long for it",)" +
         R"("serviceName":"a service too long for it","userName":")" + kName + "\"" + arguments +
         "}";
}

std::string Arguments(const std::string& object) { return R"(,"args":)" + object; }

std::string Member(const std::string& value) {
  return R"({")" + std::string(kName) + R"(":)" + value + "}";
}

Scenario Rendering(const char* name, const char* function, std::string (*call)(),
                   const std::vector<std::string>& outcomes) {
  return {name, function, call, PrepareBytes, NothingToAsk, outcomes};
}

std::vector<Scenario> ValueScenarios() {
  return {
      Rendering(
          "TextValue", kToStringById,
          [] { return VMetrics::ToString(kTextMetric, kLongText.c_str()); },
          NothingOr(Member("\"" + kLongText + "\""))),
      Rendering(
          "NumberValue", kToStringById,
          [] { return VMetrics::ToString(kIntMetric, ThePrepared().number60.data()); },
          NothingOr(Member("60"))),
      Rendering(
          "FractionValue", kToStringById,
          [] { return VMetrics::ToString(kDoubleMetric, ThePrepared().fraction.data()); },
          NothingOr(Member("-1.7976931348623157e+308"))),
      Rendering(
          "EnumValue", kToStringById,
          [] { return VMetrics::ToString(kEnumMetric, ThePrepared().number60.data()); },
          NothingOr(Member("\"60\""))),
      Rendering(
          "JsonValue", kToStringById,
          [] { return VMetrics::ToString(kJsonMetric, kSpacedJson.c_str()); },
          NothingOr(kSpacedJson)),
      Rendering("UnknownValue", kToStringById, [] { return VMetrics::ToString(1, "x"); }, {""}),
      Rendering("NoValue", kToStringById, [] { return VMetrics::ToString(kTextMetric, nullptr); },
                {"; says str is NULL"}),

      Rendering(
          "TextValueOfEvent", kToStringByEvent,
          [] { return VMetrics::ToString(kTextEvent, kLongText.c_str()); },
          NothingOr(Member("\"" + kLongText + "\""))),
      Rendering(
          "JsonValueOfEvent", kToStringByEvent,
          [] { return VMetrics::ToString(kJsonEvent, kSpacedJson.c_str()); },
          NothingOr(kSpacedJson)),
      Rendering(
          "ValueOfUnknownEvent", kToStringByEvent,
          [] { return VMetrics::ToString("an event nobody has registered", "x"); }, NothingOr("")),
      Rendering("ValueOfNoEvent", kToStringByEvent, [] { return VMetrics::ToString(nullptr, "x"); },
                {"; says str is NULL"}),
  };
}

std::vector<Scenario> NumericScenarios() {
  const std::string text = NumericLine(kTextMetric, Arguments(Member("\"" + kLongText + "\"")));
  const std::string json = NumericLine(kJsonMetric, Arguments(kCompactJson));
  return {
      Rendering("TextRecord", kNumeric, RenderNumeric<&Prepared::text>, NothingOr(text)),
      Rendering("NumberRecord", kNumeric, RenderNumeric<&Prepared::number>,
                NothingOr(NumericLine(kIntMetric, Arguments(Member("60"))))),
      Rendering("JsonRecord", kNumeric, RenderNumeric<&Prepared::json>, NothingOr(json)),
      Rendering("RecordThatIsNoJson", kNumeric, RenderNumeric<&Prepared::noJson>,
                NothingOr(NumericLine(kJsonMetric, ""))),
      Rendering("UnknownRecord", kNumeric, RenderNumeric<&Prepared::unknown>,
                NothingOr(NumericLine(1, ""))),
      Rendering("LongestRecord", kNumeric, RenderNumeric<&Prepared::longest>,
                NothingOr(NumericLine(kTextMetric,
                                      Arguments(Member("\"" + std::string(65535, 'x') + "\""))))),
      Rendering("TooLongRecord", kNumeric, RenderNumeric<&Prepared::tooLong>, {""}),
      Rendering("NoRecord", kNumeric, [] { return VMetrics::GetBaseMetricsString(nullptr); }, {""}),

      Rendering("TextMessage", kMessage, RenderMessage<&Prepared::message>, NothingOr(text)),
      Rendering("JsonMessage", kMessage, RenderMessage<&Prepared::jsonMessage>, NothingOr(json)),
      Rendering("TooLongMessage", kMessage, RenderMessage<&Prepared::tooLongMessage>,
                {"; says invalid data length=65537"}),
      Rendering("NoMessage", kMessage, [] { return VMetrics::FmtMetricsMsgToString(nullptr); },
                {""}),
  };
}

std::vector<Scenario> TextScenarios() {
  const std::string text = TextLine(kTextEvent, Arguments(Member("\"" + kLongText + "\"")));
  const std::string json = TextLine(kJsonEvent, Arguments(kCompactJson));
  const std::string unknown = TextLine("an event that nobody has registered", "");
  return {
      Rendering("TextEvent", kText, RenderText<&Prepared::textEvent>, NothingOr(text)),
      Rendering("JsonEvent", kText, RenderText<&Prepared::jsonEvent>, NothingOr(json)),
      Rendering("UnknownEvent", kText, RenderText<&Prepared::unknownEvent>, NothingOr(unknown)),
      Rendering("NoEvent", kText, [] { return VMetrics::GetStringBaseMetricsString(nullptr); },
                {""}),

      Rendering("CheckedText", kCheckedText, RenderCheckedText<&Prepared::textEvent>,
                NothingOr(text)),
      Rendering("CheckedJson", kCheckedText, RenderCheckedText<&Prepared::jsonEvent>,
                NothingOr(json)),
      Rendering("CheckedEmpty", kCheckedText, RenderCheckedText<&Prepared::emptyEvent>,
                {"; says invalid data length=0"}),
      Rendering("CheckedNothing", kCheckedText,
                [] { return VMetrics::StringFmtMetricsMsgToString(nullptr); }, {""}),
  };
}

}  // namespace

std::vector<Scenario> RenderingScenarios() {
  std::vector<Scenario> all;
  for (const auto& some : {ValueScenarios(), NumericScenarios(), TextScenarios()}) {
    all.insert(all.end(), some.begin(), some.end());
  }
  return all;
}
