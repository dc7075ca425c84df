#include "LineRecovery.h"

#include <algorithm>
#include <iterator>

#include "JsonBlanks.h"

namespace vmetrics {

namespace {

constexpr std::size_t kNowhere = std::string_view::npos;

/// Whether the character at `at` has an odd number of backslashes in front of it.
bool IsEscaped(std::string_view text, std::size_t at) {
  const std::size_t before = text.substr(0, at).find_last_not_of('\\');
  const std::size_t backslashes = before == kNowhere ? at : at - before - 1;
  return backslashes % 2 != 0;
}

/// Where the object begins that ends with the last character of `text`, if one does: going back
/// from there, at the first brace that leaves none open.
///
/// No other place comes into question, which makes the search linear. A brace within this object is
/// closed before the end, and one within a string of it would turn strings into gaps and gaps into
/// strings for the rest of the text, in which only one of the two readings can be JSON.
std::size_t StartOfLastObject(std::string_view text) {
  std::size_t open = 0;
  bool inString = false;
  for (std::size_t at = text.size(); at-- > 0;) {
    const char c = text[at];
    if (c == '"') {
      inString = inString != !IsEscaped(text, at);
    } else if (inString) {
      continue;
    } else if (c == '}' || c == ']') {
      ++open;
    } else if ((c == '{' || c == '[') && --open == 0) {
      return c == '{' ? at : kNowhere;
    }
  }
  return kNowhere;
}

/// How many of the parts of `line` around the texts have braces: in front of the first, one that
/// opens; elsewhere it may be the rest of an object, too.
std::uint64_t FragmentsAround(const std::vector<std::string_view>& texts, std::string_view line) {
  std::uint64_t fragments = 0;
  const char* begin = line.data();
  for (const std::string_view text : texts) {
    const std::string_view part(begin, static_cast<std::size_t>(text.data() - begin));
    const std::string_view braces = begin == line.data() ? "{" : "{}";
    fragments += part.find_first_of(braces) == kNowhere ? 0 : 1;
    begin = text.data() + text.size();
  }
  const std::string_view end = line.substr(static_cast<std::size_t>(begin - line.data()));
  return fragments + (end.find_first_of("{}") == kNowhere ? 0 : 1);
}

}  // namespace

const std::vector<std::string_view>& LineRecovery::TextsOf(std::string_view line) {
  texts_.clear();
  const std::size_t firstBrace = line.find('{');
  std::string_view rest = WithoutTrailingBlanks(line);
  if (firstBrace != kNowhere && check_.IsObject(rest.substr(firstBrace))) {
    texts_.push_back(rest.substr(firstBrace));  // As nearly always, and far faster than by search.
    ++total_.whole;
    return texts_;
  }
  while (TakeLastText(rest, firstBrace)) {
  }
  TakeLines(rest);
  std::reverse(texts_.begin(), texts_.end());
  Count(line);
  return texts_;
}

/// Moves the object with which `rest` ends from there to the texts, if there is one.
bool LineRecovery::TakeLastText(std::string_view& rest, std::size_t firstBrace) {
  if (rest.empty() || rest.back() != '}') {
    return false;
  }
  const std::size_t start = StartOfLastObject(rest);
  if (start == kNowhere) {
    return false;
  }
  const std::string_view text = rest.substr(start);
  const std::string_view before = WithoutTrailingBlanks(rest.substr(0, start));
  const bool isMember = firstBrace < start && AsksForValue(before) && !BeginsLikeALine(text);
  if (isMember || !check_.IsObject(text)) {
    return false;
  }
  texts_.push_back(text);
  rest = before;
  return true;
}

/// Adds to the texts what begins as a line within `rest`, the last first.
void LineRecovery::TakeLines(std::string_view rest) {
  const std::vector<std::string_view>& lines = search_.In(rest);
  std::copy_if(lines.rbegin(), lines.rend(), std::back_inserter(texts_),
               [this](std::string_view text) { return check_.IsObject(text); });
}

void LineRecovery::Count(std::string_view line) {
  const std::uint64_t fragments = texts_.empty() ? (WithoutTrailingBlanks(line).empty() ? 0 : 1)
                                                 : FragmentsAround(texts_, line);
  total_.fragments += fragments;
  const bool isAlone = texts_.size() == 1 && fragments == 0;
  (isAlone ? total_.whole : total_.recovered) += texts_.size();
}

}  // namespace vmetrics
