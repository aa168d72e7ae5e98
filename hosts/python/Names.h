#pragma once

#include <Python.h>

#include <cstddef>
#include <span>
#include <string_view>

#include "hosts/c/folivar.h"
#include "hosts/python/Owned.h"

namespace folivar::python {

// Members and parameters are found by their names as spelled, else without regard to case.
class Names {
 public:
  static bool IsSameWithoutCase(std::string_view name, std::string_view other);

  // The UTF-8 of a name; of none, nothing.
  static std::string_view TextIn(const Owned& bytes);

  // How many letters are to be changed, put in or left out to make one of the other, whatever their
  // case.
  static std::size_t Distance(std::string_view name, std::string_view other);

  // The place of the parameter with this name; one behind the last for none.
  static std::size_t Find(std::span<const folivar_parameter> parameters, PyObject* name);
};

}  // namespace folivar::python
