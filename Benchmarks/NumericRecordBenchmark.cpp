// A packed numeric record to its line of text, the clock included.

#include <benchmark/benchmark.h>
#include <fmt/format.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <cstdio>
#include <nlohmann/json.hpp>

#include "JsonCppText.h"
#include "Records.h"
#include "SameText.h"

namespace {

struct Fields {
  int eventId;
  unsigned int moduleId;
  int terminalId;
  int value;
};

/// The fields of the record, read as every contender has to.
Fields Read() {
  const VMetricsData* record = NumericRecord();
  benchmark::DoNotOptimize(record);
  Fields fields{};
  fields.eventId = static_cast<int>(record->eventId);
  fields.moduleId = record->eventId >> 16;
  fields.terminalId = static_cast<int>(record->terminalId);
  std::memcpy(&fields.value, record->data, sizeof fields.value);
  return fields;
}

std::string Ours() { return VMetrics::GetBaseMetricsString(NumericRecord()); }

std::string HandWritten() {
  const Fields fields = Read();
  std::string line;
  line.reserve(160);
  line.append("{\"eventId\":\"");
  AppendNumber(line, fields.eventId);
  line.append("\",\"timestamp\":");
  AppendNumber(line, VDateTime::GetCurrentTick());
  line.append(",\"moduleId\":");
  AppendNumber(line, fields.moduleId);
  line.append(",\"terminalId\":\"");
  AppendNumber(line, fields.terminalId);
  line.append("\",\"args\":{\"displayFPS\":");
  AppendNumber(line, fields.value);
  line.append("}}");
  return line;
}

constexpr char kFormat[] =
    "{\"eventId\":\"%d\",\"timestamp\":%lu,\"moduleId\":%u,\"terminalId\":\"%d\","
    "\"args\":{\"%s\":%d}}";

std::string Snprintf() {
  const Fields fields = Read();
  char line[256];
  const int length =
      std::snprintf(line, sizeof line, kFormat, fields.eventId, VDateTime::GetCurrentTick(),
                    fields.moduleId, fields.terminalId, "displayFPS", fields.value);
  return std::string(line, static_cast<std::size_t>(length));
}

std::string Fmt() {
  const Fields fields = Read();
  return fmt::format(
      "{{\"eventId\":\"{}\",\"timestamp\":{},\"moduleId\":{},\"terminalId\":\"{}\","
      "\"args\":{{\"{}\":{}}}}}",
      fields.eventId, VDateTime::GetCurrentTick(), fields.moduleId, fields.terminalId, "displayFPS",
      fields.value);
}

std::string Nlohmann() {
  const Fields fields = Read();
  nlohmann::ordered_json line;
  line["eventId"] = std::to_string(fields.eventId);
  line["timestamp"] = VDateTime::GetCurrentTick();
  line["moduleId"] = fields.moduleId;
  line["terminalId"] = std::to_string(fields.terminalId);
  line["args"]["displayFPS"] = fields.value;
  return line.dump();
}

std::string RapidJson() {
  const Fields fields = Read();
  rapidjson::StringBuffer buffer;
  rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
  writer.StartObject();
  writer.Key("eventId");
  writer.String(std::to_string(fields.eventId).c_str());
  writer.Key("timestamp");
  writer.Uint64(VDateTime::GetCurrentTick());
  writer.Key("moduleId");
  writer.Uint(fields.moduleId);
  writer.Key("terminalId");
  writer.String(std::to_string(fields.terminalId).c_str());
  writer.Key("args");
  writer.StartObject();
  writer.Key("displayFPS");
  writer.Int(fields.value);
  writer.EndObject();
  writer.EndObject();
  return std::string(buffer.GetString(), buffer.GetSize());
}

std::string JsonCpp() {
  const Fields fields = Read();
  Json::Value line;
  line["eventId"] = std::to_string(fields.eventId);
  line["timestamp"] = Json::UInt64(VDateTime::GetCurrentTick());
  line["moduleId"] = fields.moduleId;
  line["terminalId"] = std::to_string(fields.terminalId);
  line["args"]["displayFPS"] = fields.value;
  return WriteJsonCpp(line);
}

std::string OursSorted() { return AsJsonCppWrites(Ours()); }

/// Measures `Render`, which makes the same text as `Expected`.
template <std::string (*Render)(), std::string (*Expected)() = Ours>
void Run(benchmark::State& state) {
  if (!ExpectSameText(state, Render(), Expected())) {
    return;
  }
  for (auto iteration : state) {
    benchmark::DoNotOptimize(Render());
  }
}

BENCHMARK(Run<Ours>)->Name("numeric/ours");
BENCHMARK(Run<HandWritten>)->Name("numeric/hand-written");
BENCHMARK(Run<Snprintf>)->Name("numeric/snprintf");
BENCHMARK(Run<Fmt>)->Name("numeric/fmt");
BENCHMARK(Run<Nlohmann>)->Name("numeric/nlohmann");
BENCHMARK(Run<RapidJson>)->Name("numeric/RapidJSON");
BENCHMARK(Run<JsonCpp, OursSorted>)->Name("numeric/jsoncpp");

}  // namespace
