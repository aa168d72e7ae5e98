#pragma once

#include <string>

namespace folivar::test {

// What FormatReal has to give for `x`, worked out in whole numbers from the bits of the double, so
// that no rounding but the one that is asked for takes place. Empty where it has to raise 6.
std::string ExactReal(double x);

}  // namespace folivar::test
