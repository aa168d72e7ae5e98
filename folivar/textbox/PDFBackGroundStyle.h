#pragma once

#include <cstdint>

namespace folivar {

// Whether a text box hides what lies beneath it. A value not listed is kept, and hides nothing.
enum PDFBackGroundStyle : std::int32_t {
  bsTransparent = 0,
  bsOpaque = 1,
};

}  // namespace folivar
