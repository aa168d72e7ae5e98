#pragma once

#include <Python.h>

#include <cstddef>

namespace folivar::python {

// A function of Python's methods is not told which method it is. So there is one for each place: it
// calls the method that the class of the object has there.
class Methods {
 public:
  static constexpr std::size_t kMost = 64;

  static PyCFunction At(std::size_t place);

  // What Python is told of them: METH_FASTCALL | METH_KEYWORDS. It has called functions so
  // since 3.7, but only from 3.10 on is the first of them in the headers of the limited API.
  static constexpr int kFlags = 0x0080 | METH_KEYWORDS;
};

}  // namespace folivar::python
