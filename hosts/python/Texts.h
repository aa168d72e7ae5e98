#pragma once

#include <Python.h>

#include <cstddef>
#include <cstdint>
#include <memory>

#include "hosts/c/folivar.h"

namespace folivar::python {

// The texts of a call, as the library takes them fastest: in ASCII, or else in UTF-16, in which
// lone surrogates are what they are. Short ones take no memory.
class Texts {
 public:
  Texts() = default;
  Texts(const Texts&) = delete;
  Texts& operator=(const Texts&) = delete;

  // False without memory, with Python's error set.
  bool Convert(PyObject* text, folivar_value& value);

  // A text of the library's for Python.
  static PyObject* FromUtf16(const std::uint16_t* text, std::size_t length);
  static PyObject* FromUtf8(const char* text, std::size_t length);

 private:
  struct Long {
    std::unique_ptr<Long> next;
    std::unique_ptr<std::uint16_t[]> units;
  };

  static constexpr std::size_t kShort = 512;

  // For so many units.
  std::uint16_t* Room(std::size_t count);

  std::size_t used_ = 0;
  std::unique_ptr<Long> long_;
  std::uint16_t short_[kShort];
};

}  // namespace folivar::python
