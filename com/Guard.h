#pragma once

#include <utility>

#include "com/ComPrefix.h"

namespace folivar::com {

// The exception in flight as automation has it: its HRESULT, and an error object with source and
// text for the thread. An Error's number n becomes 0x800A0000 + n, which scripts see as n; a number
// that is an HRESULT already stays. Out of memory is 7, anything else 51.
HRESULT ReportException(const IID& source) noexcept;

// Runs what a method does. Nothing is thrown across the boundary: an exception would end the host.
// `source` is the interface that the method belongs to.
template <class Action>
HRESULT Guarded(const IID& source, Action&& action) noexcept {
  try {
    std::forward<Action>(action)();
    return S_OK;
  } catch (...) {
    return ReportException(source);
  }
}

// Raises E_POINTER for a result that has nowhere to go.
void RequirePointer(const void* result);

}  // namespace folivar::com
