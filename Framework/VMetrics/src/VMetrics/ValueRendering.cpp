#include "VMetrics/ValueRendering.h"

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "BoundsChecked.h"
#include "Common/Log.h"

namespace vmetrics {
namespace {

constexpr std::string_view kJsonType = "json";

/// Reads a value of a fixed width from wherever it stands; false when the copy is refused.
template <typename Number>
bool Read(const char* bytes, Number& value) {
  static_assert(sizeof value <= kWidestValue, "records are padded for the widest value only");
  return memcpy_s(&value, sizeof value, bytes, sizeof value) == 0;
}

template <typename Number>
bool AddNumber(const std::string& name, const char* bytes, VJson::Value& object) {
  Number value;
  if (!Read(bytes, value)) {
    return false;
  }
  object.AddJsonValue(name, value);
  return true;
}

bool AddText(const std::string& name, const char* bytes, VJson::Value& object) {
  object.AddJsonValue(name, bytes);
  return true;
}

bool AddBool(const std::string& name, const char* bytes, VJson::Value& object) {
  std::uint8_t value;
  if (!Read(bytes, value)) {
    return false;
  }
  object.AddJsonValue(name, value != 0);
  return true;
}

/// An enumerator appears as the decimal text of its number, unlike an "int".
bool AddEnum(const std::string& name, const char* bytes, VJson::Value& object) {
  int value;
  if (!Read(bytes, value)) {
    return false;
  }
  object.AddJsonValue(name, std::to_string(value));
  return true;
}

/// How the value of one type becomes a member; false when there is none to add.
struct ValueType {
  std::string_view name;
  bool (*add)(const std::string& name, const char* bytes, VJson::Value& object);
};

constexpr ValueType kValueTypes[] = {
    {"string", AddText},
    {"int", AddNumber<int>},
    {"uint64_t", AddNumber<unsigned long>},
    {"int64_t", AddNumber<long>},
    {"double", AddNumber<double>},
    {"bool", AddBool},
    {"enum", AddEnum},
};

/// Adds the value as a member; adds none for a type that is not in the table.
bool AddValue(const MetricEntry& entry, const char* bytes, VJson::Value& object) {
  for (const ValueType& type : kValueTypes) {
    if (entry[0] == type.name) {
      return type.add(entry[1], bytes, object);
    }
  }
  return true;
}

/// A host that indexed a live map with an unknown key has left an entry without texts.
bool IsComplete(const MetricEntry& entry) { return entry.size() >= 2; }

template <typename Map>
std::string RenderedText(const Map& catalogue, const typename Map::key_type& key,
                         const char* bytes) {
  const auto found = catalogue.find(key);
  if (found == catalogue.end() || !IsComplete(found->second)) {
    return {};
  }
  if (found->second[0] == kJsonType) {
    return bytes;
  }
  VJson::Value object;
  if (!AddValue(found->second, bytes, object)) {
    return {};
  }
  return object.ToString();
}

}  // namespace

bool RenderValue(const MetricEntry& entry, std::string& bytes, VJson::Value& object) {
  if (!IsComplete(entry)) {
    return false;
  }
  if (entry[0] == kJsonType) {
    bytes.resize(std::strlen(bytes.c_str()));
    return object.Parse(bytes);
  }
  return AddValue(entry, bytes.c_str(), object);
}

}  // namespace vmetrics

std::string VMetrics::ToString(int id, const char* value) {
  if (value == nullptr) {
    VMETRICS_LOG(vmetrics::kVMetricsSource, vmetrics::kLogWarning, "str is NULL");
    return {};
  }
  return vmetrics::RenderedText(GetMetricsMap(), id, value);
}

std::string VMetrics::ToString(const char* eventId, const char* value) {
  if (eventId == nullptr || value == nullptr) {
    VMETRICS_LOG(vmetrics::kVMetricsSource, vmetrics::kLogWarning, "str is NULL");
    return {};
  }
  return vmetrics::RenderedText(GetMetricsStringMap(), eventId, value);
}
