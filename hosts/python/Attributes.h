#pragma once

#include <Python.h>

namespace folivar::python {

// The attributes of objects: Python's own way for members as they are spelled; other names match
// without regard to case, or are an error that tells the nearest member.
class Attributes {
 public:
  static PyObject* Get(PyObject* self, PyObject* name);
  static int Set(PyObject* self, PyObject* name, PyObject* newValue);
};

}  // namespace folivar::python
