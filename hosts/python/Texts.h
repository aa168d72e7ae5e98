#pragma once

#include <Python.h>

#include <cstddef>
#include <cstdint>

#include "hosts/c/folivar.h"
#include "hosts/python/Owned.h"

namespace folivar::python {

// The texts of a call, for which it has to live.
class Texts {
 public:
  Texts() = default;
  Texts(const Texts&) = delete;
  Texts& operator=(const Texts&) = delete;

  // False with Python's error set. The text is borrowed for the call.
  bool Convert(PyObject* text, folivar_value& value);
  // The same of a text that may go away before.
  bool ConvertCopy(PyObject* text, folivar_value& value);

  // A text of the library's for Python.
  static PyObject* FromUtf16(const std::uint16_t* text, std::size_t length);
  static PyObject* FromUtf8(const char* text, std::size_t length);

 private:
  Owned copies_;  // a list; none until it is needed
};

}  // namespace folivar::python
