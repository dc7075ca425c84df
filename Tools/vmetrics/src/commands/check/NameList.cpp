#include "NameList.h"

#include <fmt/format.h>

#include "Text.h"

namespace vmetrics {

namespace {

constexpr std::size_t kMostNames = 3;
constexpr std::size_t kWidth = 40;

}  // namespace

void NameList::Add(std::string_view name) {
  if (count_ < kMostNames) {
    names_ += (count_ > 0 ? ", " : "") + Shortened(name);
  }
  ++count_;
}

std::string NameList::ToString() const {
  return count_ <= kMostNames ? names_ : fmt::format("{} and {} more", names_, count_ - kMostNames);
}

std::string Shortened(std::string_view text) {
  constexpr std::size_t kBytesOfACharacter = 4;
  const std::string printable = Printable(text.substr(0, (kWidth + 1) * kBytesOfACharacter));
  if (WidthOf(printable) <= kWidth) {
    return printable;
  }
  const std::string fitted = Fitted(printable, kWidth);
  return fitted.substr(0, fitted.find_last_not_of(' ') + 1);
}

}  // namespace vmetrics
