#pragma once

namespace folivar {

// How much room a text takes.
struct TextExtents {
  float width = 0;
  float height = 0;
};

}  // namespace folivar
