#pragma once

namespace folivar {

// The part of a page or a template that shows: its edges in points, in any order.
struct ClipBox {
  float left = 0;
  float bottom = 0;
  float right = 0;
  float top = 0;

  // Moves the edges outwards as far as the point needs.
  void ExtendClipBox(float x, float y);
};

}  // namespace folivar
