// Definition strings of both kinds, one after another; what they added is rendered and taken away
// again.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "ExactBytes.h"
#include "FakePlatform.h"
#include "Input.h"
#include "PreparedMetrics.h"
#include "RecordModel.h"
#include "Records.h"
#include "VMetrics.h"
#include "Verdict.h"

namespace {

/// The fields of a definition: separators in a row count as one.
std::vector<std::string> Fields(const std::string& definition) {
  std::vector<std::string> fields(1);
  for (const char character : definition) {
    if (character != ';') {
      fields.back() += character;
    } else if (!fields.back().empty()) {
      fields.emplace_back();
    }
  }
  if (fields.back().empty()) {
    fields.pop_back();
  }
  return fields;
}

/// The number that a text begins with, in decimal, as 64 bits can hold it; 0 for none.
std::int64_t LeadingNumber(const std::string& text) {
  std::size_t i = text.find_first_not_of(" \t\n\v\f\r");
  if (i == std::string::npos) {
    return 0;
  }
  const bool negative = text[i] == '-';
  i += negative || text[i] == '+' ? 1 : 0;
  const std::uint64_t greatest = negative ? std::uint64_t{1} << 63 : (std::uint64_t{1} << 63) - 1;
  std::uint64_t number = 0;
  for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
    const auto digit = static_cast<std::uint64_t>(text[i] - '0');
    number = number > (greatest - digit) / 10 ? greatest : number * 10 + digit;
    if (number == greatest) {
      break;
    }
  }
  return static_cast<std::int64_t>(negative ? 0 - number : number);
}

std::int32_t Key(const std::string& text) {
  return static_cast<std::int32_t>(static_cast<std::uint64_t>(LeadingNumber(text)) & 0xFFFFFFFF);
}

/// The outcome that a definition should have.
struct Outcome {
  int status;
  std::string message;
};

Outcome Refused(const char* message) { return {VMETRICS_INVALID, message}; }

/// Enters a definition under its key.
template <typename Map>
Outcome Enter(Map& added, const Map& prepared, const typename Map::key_type& key, bool valid,
              const std::vector<std::string>& fields) {
  if (!valid || prepared.count(key) + added.count(key) > 0) {
    return Refused("msg id invalid or has existed");
  }
  added[key] = {fields[1], fields[2], fields[3]};
  return {VMETRICS_OK, "parse msg success, id = " + fields[0] + ", type : " + fields[1] +
                           ", name : " + fields[2] + ", private : " + fields[3]};
}

Outcome Expected(const std::string& definition, bool numeric, Oracle::Metrics& added) {
  const std::vector<std::string> fields = Fields(definition.c_str());
  if (fields.size() < 4) {
    return Refused("strtok_s parse failed");
  }
  if (!numeric) {
    return Enter(added.named, PreparedMetrics().named, fields[0], true, fields);
  }
  const std::int32_t key = Key(fields[0]);
  return Enter(added.numbered, PreparedMetrics().numbered, key, key != 0, fields);
}

void RequireOutcome(int status, const Outcome& expected) {
  Require(status == expected.status, "the status");
  Require(FakePlatform::LogLines().size() == 1, "one line logged");
  RequireEqual(FakePlatform::LogLines()[0].message, expected.message, "what is logged");
}

void Register(Input& input, Oracle::Metrics& added) {
  FakePlatform::Reset();
  const std::uint8_t how = input.Byte();
  const bool numeric = how % 2 == 0;
  const auto registration =
      numeric ? VMetrics::RegisterMetricsDataType : VMetrics::RegisterMetricsStringDataType;
  if (how == 254 || how == 255) {
    RequireOutcome(registration(nullptr), Refused("msg is null"));
    return;
  }
  const std::string definition = input.Text() + '\0';
  ExactBytes writable(definition, 0);
  RequireOutcome(registration(writable.Data()), Expected(definition, numeric, added));
}

/// Renders a value of each new metric. An event ID that fills its field is another text in a
/// record.
void Render(const std::string& value, const Oracle::Metrics& added) {
  for (const auto& [id, metric] : added.numbered) {
    const std::string record = NumericRecord(0, static_cast<std::uint32_t>(id), value);
    ExactBytes exact(record, 0);
    RequireRecord(VMetrics::GetBaseMetricsString(exact.As<VMetricsData>()),
                  Oracle::NumericRecord(record.data(), FakePlatform::kFirstTick, added),
                  kNumericKeys);
  }
  for (const auto& [id, metric] : added.named) {
    if (id.size() < 128) {
      const std::string record = Oracle::PackedEvent(id, "", 0, value);
      ExactBytes exact(record, 0);
      RequireRecord(VMetrics::GetStringBaseMetricsString(exact.As<VMetricsDataString>()),
                    Oracle::StringRecord(record.data(), FakePlatform::kFirstTick, added),
                    kStringKeys);
    }
  }
}

/// Takes away what was added; nothing else may have changed.
template <typename Map>
void TakeAway(const Map& added, std::size_t prepared, Map& catalogue) {
  for (const auto& [id, metric] : added) {
    const auto found = catalogue.find(id);
    Require(found != catalogue.end() && found->second == metric, "the entry");
    catalogue.erase(found);
  }
  Require(catalogue.size() == prepared, "the number of entries");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const Oracle::Metrics& prepared = PreparedMetrics();
  Oracle::Metrics added;
  const std::string value = input.Text();
  while (!input.IsEmpty()) {
    Register(input, added);
  }
  FakePlatform::Reset();
  Render(value, added);
  TakeAway(added.numbered, prepared.numbered.size(), VMetrics::GetMetricsMap());
  TakeAway(added.named, prepared.named.size(), VMetrics::GetMetricsStringMap());
  return 0;
}
