#pragma once

#include <string_view>

namespace folivar {

// By value: kHexDigits[0x1F >> 4] is '1'.
inline constexpr std::string_view kHexDigits = "0123456789ABCDEF";

}  // namespace folivar
