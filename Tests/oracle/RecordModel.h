/// What a line says, member by member, as docs/ has it.
#ifndef ORACLE_RECORDMODEL_H_
#define ORACLE_RECORDMODEL_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Metrics.h"

namespace Oracle {

struct Member;
using Object = std::vector<Member>;

struct Value {
  enum class Kind { kText, kInteger, kReal, kBool, kObject, kJson };

  Kind kind;
  std::string text;  ///< A text's bytes as the record has them; an integer's digits; foreign JSON.
  double real = 0;
  bool truth = false;
  Object members = {};
};

struct Member {
  std::string key;
  Value value;
};

Value Text(std::string_view bytes);
Value Integer(std::int64_t number);
Value Unsigned(std::uint64_t number);

/// The line of an object.
std::string Line(const Object& object);

/// The lowest bytes of a value first, absent ones zero.
std::uint64_t Number(std::string_view bytes, std::size_t width);

/// What a record's value makes "args"; none where there are none.
std::optional<Value> Arguments(const Metric& metric, std::string_view value);

/// A record as it lies in memory, its value included; none if it announces too long a value, which
/// need not be there then. Never looks beyond what it announces.
std::optional<Object> NumericRecord(const char* record, std::uint64_t tick, const Metrics& metrics);
std::optional<Object> StringRecord(const char* record, std::uint64_t tick, const Metrics& metrics);

/// The line of a record; empty if it does not render.
inline std::string Line(const std::optional<Object>& object) {
  return object.has_value() ? Line(*object) : std::string();
}

/// The bytes of a string record that reporters pack: no terminal, user, transaction and business.
std::string PackedEvent(std::string_view eventId, std::string_view serviceName, std::uint32_t type,
                        std::string_view data);

/// What a packed event renders to; empty if the general submission refuses it.
std::string EventLine(std::string_view eventId, std::string_view serviceName, std::uint32_t type,
                      std::string_view data, std::uint64_t tick, const Metrics& metrics);

}  // namespace Oracle

#endif  // ORACLE_RECORDMODEL_H_
