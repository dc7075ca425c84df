// usage: storefront ORDER AMOUNT     takes an order, and hands it on
#include <iostream>

#include "shop.h"

int main(int argc, char** argv) {
  if (argc != 3 || !shop::SetUp()) {
    return 2;
  }
  const std::string order = argv[1];
  shop::Trace(order, "take order", shop::kNoParent, [] {
    shop::Work(20);
    return 0;
  });
  std::cout << order << ' ' << argv[2] << '\n';
}
