#pragma once

#include <Python.h>

namespace folivar::python {

// What calling a class does: PDFDocument() makes a document, the others come from documents.
class Creation {
 public:
  static PyObject* Create(PyTypeObject* type, PyObject* positional, PyObject* names);
  static PyObject* Refuse(PyTypeObject* type, PyObject* positional, PyObject* names);
};

}  // namespace folivar::python
