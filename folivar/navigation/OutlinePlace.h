#pragma once

#include <cstdint>

#include "folivar/file/Reference.h"

namespace folivar {

// Where a bookmark is in the outline as a save numbers it: the objects of those around it.
struct OutlinePlace {
  Reference parent{};
  Reference previous{};
  Reference next{};
  Reference first{};
  Reference last{};
  // How many of those below it show when it is open.
  std::int32_t visibleCount = 0;
};

}  // namespace folivar
