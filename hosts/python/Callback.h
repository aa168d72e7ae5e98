#pragma once

#include <Python.h>

#include "hosts/c/folivar.h"

namespace folivar::python {

class HostValue;

// The function of Python's in `function`, for the library to call: a handler, or what hears of
// warnings. What it throws comes out of the member that made the library call it (Thrown).
folivar_callback CallbackTo(HostValue& function);

}  // namespace folivar::python
