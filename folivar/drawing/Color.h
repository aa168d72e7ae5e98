#pragma once

#include <cstdint>
#include <initializer_list>

#include "folivar/base/Api.h"

namespace folivar {

// Colours as all members take them: 0x00BBGGRR, red in the low byte.
//
//   page->GraphicsState()->SetFillColor(Rgb(31, 78, 95));  // 0x5F4E1F

// Raises 5.
[[noreturn]] FOLIVAR_API void RaiseNoColorShare(int share);

// Of the shares of red, green and blue, each from 0 to 255. Raises 5 for any other.
constexpr std::int32_t Rgb(int red, int green, int blue) {
  for (const int share : {red, green, blue}) {
    if (share < 0 || share > 255) RaiseNoColorShare(share);
  }
  return red + green * 0x100 + blue * 0x10000;
}

// Of a level of gray from 0, black, to 1, white, rounded to single precision and then to 255 steps,
// halves to even; as PDFGraphicsState::SetFillGrayColor stores it. Raises 5 for any other.
FOLIVAR_API std::int32_t Gray(double level);

}  // namespace folivar
