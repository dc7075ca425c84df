#include "LineSearch.h"

#include "JsonBlanks.h"

namespace vmetrics {

namespace {

bool StartsWith(std::string_view text, std::string_view start) {
  return text.substr(0, start.size()) == start;
}

bool IsEscape(std::string_view text) {
  return StartsWith(text, R"(\")") || StartsWith(text, R"(\\)");
}

/// Whether it goes on as an object or array does behind one of its members.
bool GoesOnBehindMember(std::string_view text) {
  const std::size_t next = text.find_first_not_of(kJsonBlanks);
  return next != text.npos && std::string_view(",}]").find(text[next]) != text.npos;
}

}  // namespace

bool BeginsLikeALine(std::string_view text) {
  return StartsWith(text, "{\"eventId\":") || StartsWith(text, "{\"timestamp\":");
}

bool AsksForValue(std::string_view fragment) {
  const std::string_view text = WithoutTrailingBlanks(fragment);
  return !text.empty() && std::string_view(":,[").find(text.back()) != text.npos;
}

const std::vector<std::string_view>& LineSearch::In(std::string_view text) {
  open_.clear();
  found_.clear();
  inString_ = false;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char c = text[at];
    if (c == '{' && BeginsLikeALine(text.substr(at))) {
      Begin(text, at);
    } else if (open_.empty()) {
      continue;
    } else if (inString_) {
      at += IsEscape(text.substr(at)) ? 1 : 0;
      inString_ = c != '"';
    } else if (c == '"') {
      inString_ = true;
    } else if (c == '{' || c == '[') {
      open_.push_back(at);
    } else if (c == '}' || c == ']') {
      Close(text, at);
    }
  }
  return found_;
}

/// No string of JSON goes on with this beginning, and no value has it behind itself: there what was
/// open has been cut off.
void LineSearch::Begin(std::string_view text, std::size_t at) {
  if (inString_ || !AsksForValue(text.substr(0, at))) {
    open_.clear();
  }
  inString_ = false;
  open_.push_back(at);
}

void LineSearch::Close(std::string_view text, std::size_t at) {
  const std::size_t start = open_.back();
  if ((text[start] == '{') != (text[at] == '}')) {
    open_.clear();
    return;
  }
  open_.pop_back();
  const bool isMember = !open_.empty() && GoesOnBehindMember(text.substr(at + 1));
  if (isMember || !BeginsLikeALine(text.substr(start))) {
    return;
  }
  while (!found_.empty() && found_.back().data() > text.data() + start) {
    found_.pop_back();
  }
  found_.push_back(text.substr(start, at + 1 - start));
}

}  // namespace vmetrics
