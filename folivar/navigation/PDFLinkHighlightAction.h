#pragma once

#include <cstdint>

namespace folivar {

// What a reader does to a link while it is clicked. A value not listed is kept, and leaves it to
// the reader.
enum PDFLinkHighlightAction : std::int32_t {
  lhaUserDefault = 0,  // what the reader does of its own
  lhaNone = 1,
  lhaInvert = 2,   // inverts the rectangle
  lhaOutline = 3,  // inverts its border
  lhaPush = 4,     // shows it as if pressed into the page
};

}  // namespace folivar
