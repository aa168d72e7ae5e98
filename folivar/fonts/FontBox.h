#pragma once

namespace folivar {

// The box around all glyphs of a face, in thousandths of the em.
struct FontBox {
  float left = 0;
  float bottom = 0;
  float right = 0;
  float top = 0;
};

}  // namespace folivar
