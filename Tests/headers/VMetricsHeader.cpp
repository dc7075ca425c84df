// Compiles when the public header needs nothing but itself, in each C++ standard it is built with.

#include "VMetrics.h"

// Included again on purpose: it must guard itself.
#include "VMetrics.h"

int CallsTheLibrary() { return VMetrics::InsertRecord(0, "", "", "", "", VMETRICS_OK); }
