#pragma once

#include <string>

#include "hosts/c/folivar.h"

namespace folivar::python {

// The documentation of a method, in the form of which Python makes its signature:
//
//   DrawRect($self, Left, Bottom, Width, Height, Stroke=True, Fill=False)
//   --
//
//   Strokes a rectangle, fills it, or both
//
// Of what has no value of its own when it is left out the default is shown as "...".
std::string SignatureOf(const folivar_member& member);

// The same of an event, a method that takes a handler.
std::string SignatureOfEvent(const folivar_member& event);

}  // namespace folivar::python
