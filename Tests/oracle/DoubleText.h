/// Numbers with a fraction as lines show them.
#ifndef ORACLE_DOUBLETEXT_H_
#define ORACLE_DOUBLETEXT_H_

#include <string>

namespace Oracle {

/// The shortest text that reads back as `value`, the plain form where it is no longer than that
/// with an exponent; "null" for what is no number. Found by trial, with the C library's own
/// conversions, so it wants the C locale.
std::string DoubleText(double value);

}  // namespace Oracle

#endif  // ORACLE_DOUBLETEXT_H_
