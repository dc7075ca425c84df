/// A small component that reports what it does: the example of docs/test-kit.md.
#ifndef EXAMPLES_TESTKIT_ORDER_SHOP_H_
#define EXAMPLES_TESTKIT_ORDER_SHOP_H_

#include <string>

/// Makes the shop's metric known; once, at start-up. Returns whether that went well.
bool OpenShop();

/// Places an order and reports it: two steps, one in the other, and how many items there were.
/// Returns 0, or 17 if there is nothing to order.
int PlaceOrder(const std::string& order, int items);

#endif  // EXAMPLES_TESTKIT_ORDER_SHOP_H_
