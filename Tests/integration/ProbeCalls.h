/// Every function of the library, called with texts that are hard to write down.
#ifndef PROBECALLS_H_
#define PROBECALLS_H_

#include <string>
#include <vector>

/// A text with everything that JSON must escape, a per cent sign and a byte that is no UTF-8.
extern const char kHardText[];

/// Renders a record of each kind by each way; the texts, in a fixed order.
std::vector<std::string> RenderEverything();

/// Calls every reporter once: seven lines on the metrics channel. Returns the results that were not
/// VMETRICS_OK.
std::vector<int> ReportEverything();

/// Traces one step of the transaction `id`, its parent taken from the span file: one line on the
/// metrics channel. Returns whether both calls were successful.
bool TraceStep(const std::string& id, const std::string& step);

/// Calls everything and says so on standard output as "name=value": "rendered" once a text,
/// "failed" for each report or step that failed, "identifier" and "parent".
void CallEverything(const std::string& transactionId);

/// Says one thing on standard output, at once.
void Say(const char* name, const std::string& value);

#endif  // PROBECALLS_H_
