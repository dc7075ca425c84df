#include "MetricId.h"

#include <fmt/format.h>

#include <charconv>
#include <cstdint>
#include <limits>

namespace vmetrics {

unsigned int GroupOf(int id) { return static_cast<unsigned int>(id) >> 24U; }

unsigned int SideOf(int id) { return (static_cast<unsigned int>(id) >> 16U) & 0xFFU; }

std::string_view TitleOfGroup(unsigned int group) {
  switch (group) {
    case 0x11:
      return "process";
    case 0x12:
      return "display";
    case 0x13:
      return "input";
    case 0x14:
      return "audio";
    case 0x15:
      return "drive redirection";
    case 0x16:
      return "clipboard";
    case 0x17:
      return "printer";
    case 0x1B:
      return "camera";
    case 0x20:
      return "session and connection";
    case 0x22:
      return "serial port";
    case 0x23:
      return "scanner (TWAIN)";
    case 0x24:
      return "smart card (PC/SC)";
    case 0x26:
      return "bypass";
    case 0x27:
      return "file sharing";
    case 0x28:
      return "USB";
    case 0x2F:
      return "system and base information";
    case 0x31:
      return "API redirection";
    case 0x36:
      return "RTSA transport";
    default:
      return "";
  }
}

std::string_view NameOfSide(unsigned int side) {
  return side == 0x0B ? "client" : side == 0x0A ? "server" : "";
}

std::string HexadecimalId(int id) { return fmt::format("0x{:08X}", static_cast<unsigned int>(id)); }

std::string HexadecimalByte(unsigned int byte) { return fmt::format("0x{:02X}", byte); }

std::optional<int> ParseMetricId(std::string_view text) {
  const bool isHexadecimal = text.substr(0, 2) == "0x" || text.substr(0, 2) == "0X";
  if (isHexadecimal) {
    text.remove_prefix(2);
    if (text.substr(0, 1) == "-") {
      return std::nullopt;
    }
  }
  std::int64_t number = 0;
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number, isHexadecimal ? 16 : 10);
  const bool isInRange = number >= std::numeric_limits<std::int32_t>::min() &&
                         number <= std::numeric_limits<std::uint32_t>::max();
  if (result.ec != std::errc() || result.ptr != end || !isInRange) {
    return std::nullopt;
  }
  return static_cast<int>(number);
}

}  // namespace vmetrics
