// Compiles when the public header needs nothing but itself, in each C++ standard it is built with.

#include "VMetrics.h"

// Included again on purpose: it must guard itself.
#include "VMetrics.h"

int (*const use)(int, const char*, const char*, const char*, const char*,
                 int) = &VMetrics::InsertRecord;
