#pragma once

namespace folivar {

// A place in points from the bottom left corner.
struct Point {
  float x = 0;
  float y = 0;
};

}  // namespace folivar
