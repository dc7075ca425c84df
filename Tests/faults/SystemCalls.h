/// The platform's system calls as a test wants them: each can be made to fail, and time passes by
/// script alone.
///
/// The program is linked so that every call its objects make by one of these names comes here
/// first. Without a fault a call goes on to the system.
#ifndef SYSTEMCALLS_H_
#define SYSTEMCALLS_H_

#include <cstddef>
#include <string>
#include <vector>

/// The calls that can fail on a machine. Not among them: those that cannot when their arguments are
/// valid, as reading a clock or changing the signal mask.
enum class SystemCall {
  kOpen,
  kClose,
  kFstat,
  kStatx,
  kLstat,
  kFchmod,
  kFcntl,
  kDup3,
  kFlock,
  kFtruncate,
  kPread,
  kPwrite,
  kWrite,
  kWritev,
  kSend,
  kPoll,
  kNanosleep,
  kGetrlimit,
};

/// How a call goes wrong: with an error number, or by moving only a part of its bytes.
struct Fault {
  std::string name;
  int error;                             ///< 0 where a part is moved.
  std::size_t (*part)(std::size_t all);  ///< How many bytes of all; null where there is an error.
};

namespace SystemCalls {

std::vector<SystemCall> All();
const char* NameOf(SystemCall call);

/// Whether the call can be made again when it was interrupted, or has moved a part of its bytes.
bool IsRepeatable(SystemCall call);

/// Every fault that `call` can meet.
std::vector<Fault> FaultsOf(SystemCall call);

/// The scripted clock. A call that is made to fail takes a millisecond, each sleep or wait what it
/// asks for, and nobody really waits.
long Milliseconds();
void Advance(long milliseconds);

}  // namespace SystemCalls

/// While an object lives, calls of one kind fail as told: number `first` (1 is the next one), or
/// every one from there on.
class SystemCallFailure {
 public:
  enum class Extent { kOnce, kFromThereOn };

  SystemCallFailure(SystemCall call, const Fault& fault, int first, Extent extent);
  ~SystemCallFailure();
  SystemCallFailure(const SystemCallFailure&) = delete;
  SystemCallFailure& operator=(const SystemCallFailure&) = delete;

  /// How many calls have failed so far.
  int Hits() const;
};

#endif  // SYSTEMCALLS_H_
