#pragma once

#include <Python.h>

#include <cstdint>

#include "hosts/c/folivar.h"

namespace folivar::python {

// An enumeration of the library as an enum.IntEnum.
class Enumeration {
 public:
  explicit Enumeration(const folivar_enumeration& description) : description_(description) {}

  // Makes the type, and adds it and its members to the module. False with Python's error set.
  bool AddTo(PyObject* module);

  const folivar_enumeration& Description() const { return description_; }

  // The member with this value; where none is listed, the number. A new reference.
  PyObject* ValueOf(std::int64_t number) const;

 private:
  const folivar_enumeration& description_;
  PyObject* members_ = nullptr;  // a dictionary from numbers
};

}  // namespace folivar::python
