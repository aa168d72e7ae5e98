#pragma once

#include <cstdint>

namespace folivar {

// How the lines of a text box are placed between its left and its right edge. A value not listed is
// kept, and places lines at the left.
enum PDFParaAlignment : std::int32_t {
  alignNULL = 0,  // of a selection: not one alignment
  alignLeft = 1,
  alignRight = 2,
  alignCenter = 3,
};

}  // namespace folivar
