// usage: shipping     packs the orders that come in
#include <iostream>

#include "shop.h"

namespace {

int Pack() {
  shop::Work(30);
  return 0;
}

int PrintLabel() {
  shop::Work(10);
  return 0;
}

}  // namespace

int main() {
  if (!shop::SetUp()) {
    return 2;
  }
  std::string order;
  while (std::cin >> order) {
    shop::Trace(order, "pack", shop::kStepBefore, Pack);
    shop::Trace(order, "print label", shop::kStepBefore, PrintLabel);
    std::cout << order << " is on its way" << std::endl;
  }
}
