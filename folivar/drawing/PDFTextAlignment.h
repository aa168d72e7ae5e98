#pragma once

#include <cstdint>

namespace folivar {

// Where DrawTextAligned puts each line between the left and the right edge of its box. A value not
// listed is the left edge.
enum PDFHorzTextAlignment : std::int32_t {
  htaLeft = 0,
  htaRight = 1,
  htaCenter = 2,
};

// Where DrawTextAligned puts the lines between the bottom and the top of its box. A value not
// listed puts the first baseline on the bottom edge.
enum PDFVertTextAlignment : std::int32_t {
  vtaBaseline = 0,  // the first baseline on the bottom edge
  vtaTop = 1,
  vtaBottom = 2,  // the last line's descenders on the bottom edge
  vtaCenter = 3,
};

}  // namespace folivar
