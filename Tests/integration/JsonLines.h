/// The lines of the metrics channel, read by a parser that is not the library's.
#ifndef JSONLINES_H_
#define JSONLINES_H_

#include <boost/json.hpp>
#include <initializer_list>
#include <string>
#include <vector>

/// The object of each line. A line that is not a JSON object fails the test.
std::vector<boost::json::object> ParseJsonLines(const std::string& text);

/// The keys of an object, in their order.
std::vector<std::string> KeysOf(const boost::json::object& object);

/// A text member; fails the test where there is none.
std::string TextOf(const boost::json::object& object, const char* key);

#endif  // JSONLINES_H_
