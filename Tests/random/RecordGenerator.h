/// Records at random, the same ones everywhere.
#ifndef RECORDGENERATOR_H_
#define RECORDGENERATOR_H_

#include <cstdint>
#include <string>
#include <vector>

#include "Metrics.h"

/// Numbers at random by fixed arithmetic: the distributions of the standard library differ between
/// implementations.
class RandomNumbers {
 public:
  explicit RandomNumbers(std::uint64_t seed) : state_(seed) {}

  std::uint64_t Next();
  /// One of 0 to `limit` - 1.
  std::size_t Below(std::size_t limit) { return static_cast<std::size_t>(Next() % limit); }
  bool OneIn(std::size_t count) { return Below(count) == 0; }

 private:
  std::uint64_t state_;
};

/// A record as it lies in memory.
struct GeneratedRecord {
  bool numeric;  ///< With a numeric ID; otherwise with an event ID.
  std::string bytes;
};

/// Makes records of the metrics it is told of, of unknown ones too, with values and texts of all
/// kinds. A value's announced length is honest, but for one record in 500 that announces too much.
class RecordGenerator {
 public:
  RecordGenerator(std::uint64_t seed, const Oracle::Metrics& metrics);

  GeneratedRecord Next();
  /// A tick, with as many digits as ticks can have.
  std::uint64_t Tick();

 private:
  struct Known {
    std::string id;  ///< The four bytes of a numeric ID, or the text of an event's.
    std::string type;
  };

  const Known* Pick(const std::vector<Known>& known);
  std::string Value(const std::string& type);
  std::uint64_t Magnitude();
  void Break(std::string& json);
  std::string FixedWidth(std::size_t width);
  std::string Bytes(std::size_t count);
  std::size_t Length();
  std::string Text(std::size_t most);
  std::string Character();
  std::string Field(std::size_t width);
  std::string Json(int depth);
  std::string JsonList(char begin, char end, bool named, int depth);
  std::string JsonString();
  std::string JsonNumber();
  std::string WhiteSpace();
  std::string AnnouncedLength(std::string& value);

  RandomNumbers random_;
  std::vector<Known> numbered_;
  std::vector<Known> named_;
};

#endif  // RECORDGENERATOR_H_
