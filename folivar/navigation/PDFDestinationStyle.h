#pragma once

#include <cstdint>

namespace folivar {

// What a reader shows of a destination's page. A value not listed is kept, and makes the
// destination none.
enum PDFDestinationStyle : std::int32_t {
  dsXYZ = 0,      // the point (Left, Top) in the window's upper left corner, at Zoom
  dsFit = 1,      // the whole page
  dsFitHorz = 2,  // the page's width, Top at the window's upper edge
  dsFitVert = 3,  // the page's height, Left at the window's left edge
  dsFitRect = 4,  // the region
};

}  // namespace folivar
