// Renders the same 100,000 records on every machine and compares a hash of all lines with the one
// that is kept: processors, compilers and the signedness of char change no byte.
// usage: golden_hash FILE

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <string>

#include "FakePlatform.h"
#include "RandomMetrics.h"
#include "RecordGenerator.h"

namespace {

/// FNV-1a of 64 bits.
class Hash {
 public:
  void Add(const std::string& text) {
    for (const char character : text) {
      value_ = (value_ ^ static_cast<std::uint8_t>(character)) * 0x100000001B3;
    }
  }
  std::string Text() const {
    char text[32];
    std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(value_));
    return text;
  }

 private:
  std::uint64_t value_ = 0xCBF29CE484222325;
};

std::string HashOfLines(int records) {
  RecordGenerator generator(20231114, RandomMetrics());
  Hash hash;
  for (int number = 0; number < records; ++number) {
    const GeneratedRecord record = generator.Next();
    FakePlatform::ScriptTicks({generator.Tick()});
    const char* const bytes = record.bytes.data();
    hash.Add(record.numeric
                 ? VMetrics::GetBaseMetricsString(reinterpret_cast<const VMetricsData*>(bytes))
                 : VMetrics::GetStringBaseMetricsString(
                       reinterpret_cast<const VMetricsDataString*>(bytes)));
    hash.Add("\n");
  }
  return hash.Text();
}

}  // namespace

int main(int argc, char** argv) {
  std::string expected;
  if (argc == 2) {
    std::ifstream(argv[1]) >> expected;
  }
  const std::string actual = HashOfLines(100'000);
  std::printf("%s\n", actual.c_str());
  if (actual != expected) {
    std::fprintf(stderr, "expected: %s\n", expected.c_str());
    return 1;
  }
  return 0;
}
