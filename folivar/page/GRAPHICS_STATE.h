#pragma once

#include <cstdint>

namespace folivar {

// What a PDFGraphicsState remembers of the values set through it. A record made by Push is all 0.
struct GRAPHICS_STATE {
  std::int32_t StrokeColor = 0;  // 0x00BBGGRR
  std::int32_t FillColor = 0;
  float LineWidth = 0;    // points
  float LineDashOn = 0;   // points
  float LineDashOff = 0;  // points
};

}  // namespace folivar
