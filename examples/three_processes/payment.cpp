// usage: payment     charges the orders that come in, and hands them on
#include <iostream>

#include "shop.h"

namespace {

constexpr int kLimit = 100;
constexpr int kCardRefused = -7;

int Charge(int amount) {
  shop::Work(60);
  return amount <= kLimit ? 0 : kCardRefused;
}

}  // namespace

int main() {
  if (!shop::SetUp()) {
    return 2;
  }
  std::string order;
  int amount;
  while (std::cin >> order >> amount) {
    const auto charge = [amount] { return Charge(amount); };
    if (shop::Trace(order, "charge card", shop::kStepBefore, charge) == 0) {
      std::cout << order << std::endl;
    }
  }
}
