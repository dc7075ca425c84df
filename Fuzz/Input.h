/// What a fuzzer's bytes stand for. When they are used up, all is zero and empty.
#ifndef FUZZ_INPUT_H_
#define FUZZ_INPUT_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size)
      : rest_(reinterpret_cast<const char*>(data), size) {}

  bool IsEmpty() const { return rest_.empty(); }

  std::uint8_t Byte() {
    const std::string_view byte = Take(1);
    return byte.empty() ? std::uint8_t{0} : static_cast<std::uint8_t>(byte[0]);
  }

  /// The least significant byte first.
  std::uint64_t Number(int bytes) {
    std::uint64_t number = 0;
    for (int i = 0; i < bytes; ++i) {
      number |= std::uint64_t{Byte()} << 8 * i;
    }
    return number;
  }
  std::uint32_t Word() { return static_cast<std::uint32_t>(Number(4)); }
  int Int() { return static_cast<int>(Word()); }

  /// A text behind its length. The length 255 stands for one byte that is repeated up to 255 times,
  /// or up to 65,536 times: long texts from short inputs. The latter are hard to hit, as they are
  /// slow.
  std::string Text() {
    const std::uint8_t length = Byte();
    if (length < 255) {
      return std::string(Take(length));
    }
    const char repeated = static_cast<char>(Byte());
    const std::size_t count = Byte();
    const bool isLong = Number(2) == kLong;
    return std::string(isLong ? 65281 + count : count, repeated);
  }

  std::string Rest() { return std::string(Take(rest_.size())); }

 private:
  static constexpr std::uint64_t kLong = 0x4C4C;  // "LL"

  std::string_view Take(std::size_t count) {
    const std::string_view taken = rest_.substr(0, count);
    rest_.remove_prefix(taken.size());
    return taken;
  }

  std::string_view rest_;
};

#endif  // FUZZ_INPUT_H_
