#pragma once

#include <Python.h>

#include <cstdint>

namespace folivar::python {

// What a function that the library called has thrown. It waits, for each thread, until the member
// comes back that called the library.
class Thrown {
 public:
  // What the function tells the library; no error has this number.
  static constexpr std::int32_t kNumber = -1;

  // Python's error, which no longer is set then.
  static PyObject* Take();
  static void Raise(PyObject* thrown);
  // As of what a destructor throws, sys.unraisablehook hears of it.
  static void Report(PyObject* thrown);

  // Null for none.
  static PyObject*& Waiting() { return waiting_; }

 private:
  static inline constinit thread_local PyObject* waiting_ = nullptr;
};

}  // namespace folivar::python
