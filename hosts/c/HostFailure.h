#pragma once

#include <cstdint>

namespace folivar::hosts {

// A callback of the host's has failed; the number is its own.
struct HostFailure {
  std::int32_t number;
};

}  // namespace folivar::hosts
