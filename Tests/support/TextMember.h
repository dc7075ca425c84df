/// A look into a line of JSON without parsing it.
#ifndef TEXTMEMBER_H_
#define TEXTMEMBER_H_

#include <string>

/// The text of a member of `line`; empty where there is none. Good for texts that need no escaping.
inline std::string TextMember(const std::string& line, const std::string& key) {
  const std::string before = "\"" + key + "\":\"";
  const std::size_t at = line.find(before);
  if (at == std::string::npos) {
    return "";
  }
  const std::size_t begin = at + before.size();
  return line.substr(begin, line.find('"', begin) - begin);
}

#endif  // TEXTMEMBER_H_
