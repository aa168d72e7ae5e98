#pragma once

#include "folivar/base/Api.h"

namespace folivar {

// What link destinations and hyperlinks have in common: a rectangle, kept as its four edges. Points
// from the bottom left corner of a page; 0 each at first. An edge is kept as it is set, on whatever
// side of the others.
//
// A sum or difference of edges beyond a single raises 6, and the region stays as it was.
//
// `Owner` is the class that it is a part of, which errors name.
template <class Owner>
class FOLIVAR_API Region {
 public:
  float Left() const { return left_; }
  void SetLeft(float left) { left_ = left; }
  float Right() const { return right_; }
  void SetRight(float right) { right_ = right; }
  float Bottom() const { return bottom_; }
  void SetBottom(float bottom) { bottom_ = bottom; }
  float Top() const { return top_; }
  void SetTop(float top) { top_ = top; }

  // All four edges. A negative width extends the region to the left of `left`, a negative height
  // below `bottom`: the edges come out in order.
  void SetRegion(float left, float bottom, float width, float height);

  // From the left edge to the right one. Setting it keeps the left edge; a negative width extends
  // the region to the left of it.
  float Width() const;
  void SetWidth(float width);

  // From the bottom edge to the top one. Deliberate: setting it keeps the top edge and measures
  // downwards from it, unlike SetRegion; a negative height extends the region above it.
  float Height() const;
  void SetHeight(float height);

 protected:
  Region() = default;
  ~Region() = default;
  Region(const Region&) = default;
  Region& operator=(const Region&) = default;

 private:
  float left_ = 0;
  float top_ = 0;
  float right_ = 0;
  float bottom_ = 0;
};

}  // namespace folivar
