#pragma once

#include <Python.h>

#include <cstddef>
#include <cstdint>
#include <span>

#include "hosts/c/folivar.h"

namespace folivar::python {

class Member;
class State;

// Does with the member of the wrapped object what the action says. Gives what the member gives, a
// new reference; null with Python's error set.
PyObject* Invoke(PyObject* self, const Member& member, folivar_action action,
                 folivar_value* arguments, std::size_t count);

// The value of a property without parameters.
PyObject* Get(PyObject* self, const Member& property);

// The member with its arguments: first those without a name, then those that `names`, a tuple,
// tells; null for none.
PyObject* Call(PyObject* self, const Member& member, std::span<PyObject* const> given,
               PyObject* names);

// A property is given a value; null, which deletes others, is refused. 0, or -1 with Python's error
// set.
int Set(PyObject* self, const Member& property, PyObject* newValue);

// After a function of the library has returned `number`: whether it has done its work. If not,
// Python's error is set: what a function threw that it called, or a folivar.Error. What a function
// threw and the library dropped is told to sys.unraisablehook.
bool Succeeded(const State& state, std::int32_t number);

}  // namespace folivar::python
