/// Tracing as docs/ has it: open steps, the span file, and what each event should say.
#ifndef FUZZ_STEPMODEL_H_
#define FUZZ_STEPMODEL_H_

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// The arguments of an event, and the state of the platform while it is handled.
struct StepEvent {
  int status = 0;
  std::optional<std::string> transaction;  ///< None stands for null; the others likewise.
  std::optional<std::string> event;
  std::optional<std::string> step;
  std::optional<std::string> parent;
  int errorCode = 0;

  std::uint64_t tick = 0;     ///< At the beginning.
  std::uint64_t endTick = 0;  ///< When the line is made.
  bool refuseFirstLock = false;
  bool refuseSecondLock = false;
  int writeLimit = 36;  ///< -1: writing fails.
};

/// What an event should do. In texts, kIdentifier stands for the identifier, which is random.
struct StepOutcome {
  int status;
  std::vector<std::string> logged;
  std::string line;
  std::string keys;
  std::vector<std::string> fileOperations;
  std::optional<std::size_t> written = {};  ///< How much of the identifier the file then holds.
};

class StepModel {
 public:
  static constexpr char kIdentifier[] = "00000000-0000-0000-0000-000000000000";

  StepOutcome Handle(const StepEvent& event);

  /// The span file's content; none while it does not exist. After the end of a step whose outcome
  /// says `written`, the caller puts the identifier there.
  std::optional<std::string> file;

 private:
  using Transaction = std::map<std::string, std::uint64_t>;  // Open step -> tick of its start.

  StepOutcome End(const StepEvent& event, Transaction& transaction);
  std::string TakeParent(const StepEvent& event, StepOutcome& outcome);
  void Publish(const StepEvent& event, bool refused, StepOutcome& outcome);

  std::map<std::string, Transaction> transactions_;
};

/// The text of the span file that counts: up to a NUL, 128 bytes at most.
std::string SpanFileText(const std::string& content);

#endif  // FUZZ_STEPMODEL_H_
