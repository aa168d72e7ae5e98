#pragma once

#include <Python.h>

namespace folivar::python {

// What a collection is to Python, in terms of its members: pages("a"), pages[1], len(pages), "a" in
// pages, iter(pages).
class Collection {
 public:
  static PyObject* Call(PyObject* self, PyObject* positional, PyObject* names);
  static PyObject* ItemAt(PyObject* self, PyObject* key);
  static Py_ssize_t Length(PyObject* self);
  static int Contains(PyObject* self, PyObject* key);
  // Over the members as they are when it begins.
  static PyObject* Iterate(PyObject* self);
};

}  // namespace folivar::python
