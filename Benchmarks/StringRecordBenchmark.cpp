// A record with a JSON payload, of 220 bytes and of 60 KB, to its line of text, the clock included.

#include <benchmark/benchmark.h>
#include <rapidjson/document.h>
#include <rapidjson/reader.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>
#include <simdjson.h>

#include <nlohmann/json.hpp>

#include "BoostValidation.h"
#include "JsonCppText.h"
#include "Records.h"
#include "SameText.h"

namespace {

/// The record and its payload, and the fields as every contender has to read them.
struct Input {
  explicit Input(std::size_t size)
      : payload(Payload(size)),
        bytes(StringRecordBytes(payload)),
        record(reinterpret_cast<const VMetricsDataString*>(bytes.data())) {}

  const std::string payload;
  const std::vector<char> bytes;
  const VMetricsDataString* const record;
};

const Input& Short() {
  static const Input input(220);
  return input;
}

const Input& Long() {
  static const Input input(60000);
  return input;
}

std::string Ours(const Input& input) { return VMetrics::GetStringBaseMetricsString(input.record); }

/// Appends the payload without the white space between its values.
void AppendCompacted(std::string& out, std::string_view json) {
  const std::size_t begin = out.size();
  out.resize(begin + json.size());
  char* end = out.data() + begin;
  bool inside = false;
  for (std::size_t i = 0; i < json.size(); ++i) {
    const char character = json[i];
    if (inside) {
      *end++ = character;
      if (character == '\\') {
        *end++ = json[++i];
      } else if (character == '"') {
        inside = false;
      }
    } else if (character != ' ' && character != '\n' && character != '\r' && character != '\t') {
      *end++ = character;
      inside = character == '"';
    }
  }
  out.resize(static_cast<std::size_t>(end - out.data()));
}

std::string HandWritten(const Input& input) {
  const VMetricsDataString& record = *input.record;
  const std::string_view payload(record.data, record.dataLength);
  std::string line;
  line.reserve(512 + payload.size());
  line.append("{\"eventId\":");
  AppendString(line, record.eventId);
  line.append(",\"timestamp\":");
  AppendNumber(line, VDateTime::GetCurrentTick());
  line.append(",\"terminalId\":\"");
  AppendNumber(line, static_cast<int>(record.terminalId));
  line.append("\",\"type\":\"");
  AppendNumber(line, static_cast<int>(record.type));
  line.append("\",\"transactionId\":");
  AppendString(line, record.transactionId);
  line.append(",\"businessType\":");
  AppendString(line, record.businessType);
  line.append(",\"serviceName\":");
  AppendString(line, record.serviceName);
  line.append(",\"userName\":");
  AppendString(line, record.userName);
  if (BoostFindsValid(payload)) {
    line.append(",\"args\":");
    AppendCompacted(line, payload);
  }
  line.push_back('}');
  return line;
}

/// What a payload costs at the least: validation and compaction, nothing else.
std::string BoostAlone(const Input& input) {
  std::string compact;
  if (BoostFindsValid(input.payload)) {
    compact.reserve(input.payload.size());
    AppendCompacted(compact, input.payload);
  }
  return compact;
}

std::string SimdJson(const Input& input) {
  simdjson::dom::parser parser;
  simdjson::dom::element element;
  if (parser.parse(input.payload).get(element) != simdjson::SUCCESS) {
    return {};
  }
  std::string compact(input.payload.size(), '\0');
  std::size_t size = 0;
  if (simdjson::minify(input.payload.data(), input.payload.size(), compact.data(), size) !=
      simdjson::SUCCESS) {
    return {};
  }
  compact.resize(size);
  return compact;
}

std::string Nlohmann(const Input& input) {
  const VMetricsDataString& record = *input.record;
  nlohmann::ordered_json line;
  line["eventId"] = record.eventId;
  line["timestamp"] = VDateTime::GetCurrentTick();
  line["terminalId"] = std::to_string(record.terminalId);
  line["type"] = std::to_string(record.type);
  line["transactionId"] = record.transactionId;
  line["businessType"] = record.businessType;
  line["serviceName"] = record.serviceName;
  line["userName"] = record.userName;
  line["args"] = nlohmann::ordered_json::parse(input.payload);
  return line.dump();
}

/// Writes numbers as they are spelt, which the writer itself would put into quotes.
struct SpeltNumbersWriter : rapidjson::Writer<rapidjson::StringBuffer> {
  using Writer::Writer;
  bool RawNumber(const char* text, rapidjson::SizeType length, bool) {
    return RawValue(text, length, rapidjson::kNumberType);
  }
};

std::string RapidJson(const Input& input) {
  const VMetricsDataString& record = *input.record;
  rapidjson::StringBuffer buffer;
  SpeltNumbersWriter writer(buffer);
  const auto add = [&writer](const char* key, const char* value) {
    writer.Key(key);
    writer.String(value);
  };
  writer.StartObject();
  add("eventId", record.eventId);
  writer.Key("timestamp");
  writer.Uint64(VDateTime::GetCurrentTick());
  add("terminalId", std::to_string(record.terminalId).c_str());
  add("type", std::to_string(record.type).c_str());
  add("transactionId", record.transactionId);
  add("businessType", record.businessType);
  add("serviceName", record.serviceName);
  add("userName", record.userName);
  writer.Key("args");
  rapidjson::Reader reader;
  rapidjson::StringStream stream(input.payload.c_str());
  constexpr unsigned int kFlags =
      rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseValidateEncodingFlag;
  const bool valid = !reader.Parse<kFlags>(stream, writer).IsError();
  writer.EndObject();
  return valid ? std::string(buffer.GetString(), buffer.GetSize()) : std::string();
}

std::string JsonCpp(const Input& input) {
  const VMetricsDataString& record = *input.record;
  Json::Value line;
  line["eventId"] = record.eventId;
  line["timestamp"] = Json::UInt64(VDateTime::GetCurrentTick());
  line["terminalId"] = std::to_string(record.terminalId);
  line["type"] = std::to_string(record.type);
  line["transactionId"] = record.transactionId;
  line["businessType"] = record.businessType;
  line["serviceName"] = record.serviceName;
  line["userName"] = record.userName;
  return ReadJsonCpp(input.payload, line["args"]) ? WriteJsonCpp(line) : "";
}

std::string OursSorted(const Input& input) { return AsJsonCppWrites(Ours(input)); }

std::string OurPayload(const Input& input) {
  const std::string line = Ours(input);
  const std::string head = "\"args\":";
  const std::size_t begin = line.find(head) + head.size();
  return line.substr(begin, line.size() - begin - 1);
}

using Renderer = std::string(const Input&);

/// Measures `Render`, which makes the same text as `Expected`.
template <Renderer Render, const Input& (*Size)(), Renderer Expected = Ours>
void Run(benchmark::State& state) {
  const Input& input = Size();
  if (!ExpectSameText(state, Render(input), Expected(input))) {
    return;
  }
  for (auto iteration : state) {
    benchmark::DoNotOptimize(Render(input));
  }
}

BENCHMARK(Run<Ours, Short>)->Name("string220/ours");
BENCHMARK(Run<HandWritten, Short>)->Name("string220/hand-written");
BENCHMARK(Run<Nlohmann, Short>)->Name("string220/nlohmann");
BENCHMARK(Run<RapidJson, Short>)->Name("string220/RapidJSON");
BENCHMARK(Run<JsonCpp, Short, OursSorted>)->Name("string220/jsoncpp");
BENCHMARK(Run<Ours, Long>)->Name("string60k/ours");
BENCHMARK(Run<BoostAlone, Long, OurPayload>)->Name("string60k/Boost.JSON");
BENCHMARK(Run<SimdJson, Long, OurPayload>)->Name("string60k/simdjson");
BENCHMARK(Run<Nlohmann, Long>)->Name("string60k/nlohmann");
BENCHMARK(Run<RapidJson, Long>)->Name("string60k/RapidJSON");
BENCHMARK(Run<JsonCpp, Long, OursSorted>)->Name("string60k/jsoncpp");

}  // namespace
