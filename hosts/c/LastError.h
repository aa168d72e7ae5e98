#pragma once

#include <cstdint>

#include "hosts/c/folivar.h"

namespace folivar::hosts {

// What folivar_last_error tells, for each thread.
class LastError {
 public:
  // Keeps the exception that is being handled; returns its number, which is never 0.
  static std::int32_t Keep() noexcept;

  static const folivar_error* Get() noexcept;
};

// Runs `action`; returns 0, or the number of what it threw.
template <class Action>
std::int32_t Guarded(const Action& action) noexcept {
  try {
    action();
    return 0;
  } catch (...) {
    return LastError::Keep();
  }
}

}  // namespace folivar::hosts
