#include "folivar/textbox/RunFont.h"

namespace folivar {

RunFont RunFont::CloneOf(const PDFFont& font) {
  RunFont clone;
  clone.font_ = font.Clone();
  return clone;
}

}  // namespace folivar
