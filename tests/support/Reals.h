#pragma once

#include <array>
#include <string>

#include "folivar/document/Global.h"

namespace folivar::test {

// As text what the library's FormatReal writes.
inline std::string FormatReal(double x) {
  std::array<char, kLongestReal> digits;
  return {digits.data(), folivar::FormatReal(digits.data(), x)};
}

}  // namespace folivar::test
