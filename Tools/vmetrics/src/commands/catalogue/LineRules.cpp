#include "catalogue/LineRules.h"

#include <fmt/format.h>
#include <simdjson.h>

#include <algorithm>
#include <iterator>
#include <utility>

#include "Text.h"
#include "catalogue/Blanks.h"
#include "catalogue/IdRules.h"

namespace vmetrics {

namespace {

constexpr std::string_view kTypes[] = {"string", "int",  "uint64_t", "int64_t",
                                       "double", "bool", "enum",     "json"};
/// Bytes that a record has for its event ID.
constexpr std::size_t kLongestEventId = 128;

bool EndsWithReturn(std::string_view text) { return !text.empty() && text.back() == '\r'; }

std::string_view WithoutReturn(std::string_view text) {
  return text.substr(0, text.size() - (EndsWithReturn(text) ? 1 : 0));
}

bool HasControlCharacter(std::string_view text) {
  return std::any_of(text.begin(), text.end(), [](char c) {
    return (static_cast<unsigned char>(c) < 0x20 && kBlanks.find(c) == kBlanks.npos) || c == 0x7F;
  });
}

/// Collects what applies of one line.
class LineRules {
 public:
  LineRules(DefinitionKind kind, std::string_view line) : kind_(kind), line_(line), fields_(line) {}

  std::vector<LintFinding> Findings(std::uint64_t number) {
    CheckBytes(number);
    if (fields_.hasEmpty) {
      Add("empty-field", "an empty field does not count: those behind it move forward");
    }
    if (fields_.count == 4) {
      CheckFields();
    }
    return std::move(findings_);
  }

 private:
  void Add(const char* rule, std::string reason) { findings_.push_back({rule, std::move(reason)}); }

  void CheckBytes(std::uint64_t number) {
    if (number == 1 && line_.substr(0, kByteOrderMark.size()) == kByteOrderMark) {
      Add("byte-order-mark", "the file begins with a byte order mark, which is part of the ID");
    }
    const std::size_t nul = line_.find('\0');
    if (nul != line_.npos) {
      Add("nul",
          fmt::format("a NUL byte ends the definition; bytes behind it that do not count: {}",
                      line_.size() - nul - 1));
    }
    if (EndsWithReturn(line_)) {
      Add("carriage-return",
          "the line ends in CR LF: who cuts at LF alone passes the CR on to the library");
    }
    if (HasControlCharacter(WithoutReturn(line_.substr(0, nul)))) {
      Add("control-character", "control characters are written as escapes in metrics lines");
    }
    if (!simdjson::validate_utf8(line_.data(), line_.size())) {
      Add("not-utf8", "bytes that are not UTF-8 become U+FFFD in metrics lines");
    }
  }

  void CheckFields() {
    const std::string_view flag = WithoutReturn(fields_.privateFlag);
    CheckBlanks("ID", fields_.id, kind_ == DefinitionKind::kNumeric);
    CheckBlanks("type", fields_.type, false);
    CheckBlanks("name", fields_.name, false);
    CheckBlanks("flag", flag, false);
    if (std::find(std::begin(kTypes), std::end(kTypes), fields_.type) == std::end(kTypes)) {
      Add("type", fmt::format("the type \"{}\" is none of {}: such a value is written as {{}}",
                              Printable(fields_.type), fmt::join(kTypes, ", ")));
    }
    if (flag != "0" && flag != "1") {
      Add("flag", fmt::format("the flag \"{}\" is neither 0 nor 1: only 1 makes a metric private",
                              Printable(flag)));
    }
    const std::string_view rest = WithoutReturn(fields_.rest);
    if (rest.find_first_not_of(';') != rest.npos) {
      Add("fifth-field",
          fmt::format("what follows the fourth field is ignored: \"{}\"", Printable(rest)));
    }
    CheckId();
  }

  void CheckId() {
    if (kind_ == DefinitionKind::kNumeric) {
      std::vector<LintFinding> inId = FindingsInId(fields_.id);
      std::move(inId.begin(), inId.end(), std::back_inserter(findings_));
    } else if (fields_.id.size() > kLongestEventId) {
      Add("event-id-length", fmt::format("the event ID has {} bytes, a record has room for {}",
                                         fields_.id.size(), kLongestEventId));
    }
  }

  void CheckBlanks(const char* what, std::string_view field, bool areIgnored) {
    if (WithoutBlanks(field).size() < field.size()) {
      Add("blanks", fmt::format("blanks around the {} {}: \"{}\"", what,
                                areIgnored ? "are ignored" : "belong to it", Printable(field)));
    }
  }

  const DefinitionKind kind_;
  const std::string_view line_;
  const DefinitionFields fields_;
  std::vector<LintFinding> findings_;
};

}  // namespace

std::vector<LintFinding> FindingsInLine(DefinitionKind kind, std::uint64_t number,
                                        std::string_view line) {
  return LineRules(kind, line).Findings(number);
}

}  // namespace vmetrics
