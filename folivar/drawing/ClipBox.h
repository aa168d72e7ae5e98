#pragma once

namespace folivar {

// The part of a page or a template that shows: its edges in points, in any order.
struct ClipBox {
  float left;
  float bottom;
  float right;
  float top;

  void ExtendClipBox(float x, float y);
};

}  // namespace folivar
