#pragma once

#include <cstdint>

namespace folivar {

// Where a bookmark is in the outline as a save numbers it: the object numbers of those around it, 0
// for none.
struct OutlinePlace {
  std::int32_t parent = 0;
  std::int32_t previous = 0;
  std::int32_t next = 0;
  std::int32_t first = 0;
  std::int32_t last = 0;
  // How many of those below it show when it is open.
  std::int32_t visibleCount = 0;
};

}  // namespace folivar
