/// One metrics line, taken apart.
#ifndef VMETRICS_TOOL_LOGENTRY_H_
#define VMETRICS_TOOL_LOGENTRY_H_

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace vmetrics {

enum class JsonKind { kNull, kBoolean, kNumber, kString, kObject, kArray };

/// A member of a JSON object.
struct Member {
  std::string_view key;
  JsonKind kind;
  /// Of a string its characters, of everything else its JSON text as it is written.
  std::string_view text;

  /// The value as a number: nothing where it is none, or none of that type.
  std::optional<std::int64_t> Integer() const;
  std::optional<std::uint64_t> Unsigned() const;
  std::optional<double> Double() const;
};

/// The members of a line in their order, those of its object "args" apart.
struct LogEntry {
  std::vector<Member> members;  ///< "args" among them, as its text.
  std::vector<Member> args;     ///< None where there is no "args", or it is no object.

  /// The first member of that name; null where there is none.
  const Member* Find(std::string_view key) const { return Find(members, key); }
  const Member* FindInArgs(std::string_view key) const { return Find(args, key); }

  /// The characters of a member that is a string; none where there is no such member.
  std::string_view Text(std::string_view key) const;

  /// Whether it is the record of a step: with a span identifier and the name of the step.
  bool IsStep() const;

 private:
  static const Member* Find(const std::vector<Member>& members, std::string_view key);
};

/// Takes lines apart. Keeps the memory that one takes for the next.
class LogEntryParser {
 public:
  LogEntryParser();
  ~LogEntryParser();
  LogEntryParser(const LogEntryParser&) = delete;
  LogEntryParser& operator=(const LogEntryParser&) = delete;

  /// Takes apart `text`, one JSON object with nothing else around it but blanks. Returns null where
  /// it is none. The entry and all its texts are good until the next call.
  const LogEntry* Parse(std::string_view text);

 private:
  struct Parser;

  std::unique_ptr<Parser> parser_;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_LOGENTRY_H_
