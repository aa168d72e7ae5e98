#pragma once

#include <Python.h>

namespace folivar::python {

// Sets Python's error aside, and back again at the end of the scope.
class KeptError {
 public:
  KeptError() { PyErr_Fetch(&type_, &value_, &traceback_); }
  KeptError(const KeptError&) = delete;
  KeptError& operator=(const KeptError&) = delete;
  ~KeptError() {
    if (type_ != nullptr) PyErr_Restore(type_, value_, traceback_);
  }

  // Another error takes its place.
  void Drop() {
    Py_CLEAR(type_);
    Py_CLEAR(value_);
    Py_CLEAR(traceback_);
  }

 private:
  PyObject* type_ = nullptr;
  PyObject* value_ = nullptr;
  PyObject* traceback_ = nullptr;
};

}  // namespace folivar::python
