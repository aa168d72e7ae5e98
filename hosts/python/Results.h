#pragma once

#include <Python.h>

#include <cstddef>

#include "hosts/c/folivar.h"

namespace folivar::python {

class Enumeration;
class State;

// What the library gives, for Python. The results are new references, null with Python's error set.
class Results {
 public:
  // `enumeration` is that of the numbers, null for none.
  static PyObject* ValueOf(const State& state, const folivar_value& value,
                           const Enumeration* enumeration);

  // Numbers as a tuple with names.
  static PyObject* TupleOf(PyTypeObject& type, const folivar_value* values, std::size_t count);
};

}  // namespace folivar::python
