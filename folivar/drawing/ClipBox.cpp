#include "folivar/drawing/ClipBox.h"

#include "folivar/document/Global.h"

namespace folivar {

void ClipBox::ExtendClipBox(float x, float y) {
  bottom = MinOf(bottom, y);
  left = MinOf(left, x);
  right = MaxOf(right, x);
  top = MaxOf(top, y);
}

}  // namespace folivar
