#pragma once

#include "com/ComPrefix.h"

namespace folivar::com {

// Runs `action(context)`, which is what a method does. Nothing is thrown across the boundary, since
// an exception would end the host: it becomes an HRESULT, with an error object for the thread that
// has source and text. An Error's number n becomes 0x800A0000 + n, which scripts see as n; a number
// that is an HRESULT already stays. Out of memory is 7, anything else 51. `source` is the interface
// that the method belongs to.
HRESULT RunGuarded(const IID& source, void (*action)(void* context), void* context) noexcept;

// The same for anything that can be called.
template <class Action>
HRESULT Guarded(const IID& source, const Action& action) noexcept {
  return RunGuarded(
      source, [](void* context) { (*static_cast<const Action*>(context))(); },
      const_cast<Action*>(&action));
}

// Raises E_POINTER for a result that has nowhere to go.
void RequirePointer(const void* result);

}  // namespace folivar::com
