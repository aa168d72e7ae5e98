#pragma once

#include <Python.h>

#include <cstddef>
#include <cstdint>
#include <span>

#include "hosts/c/folivar.h"
#include "hosts/python/Texts.h"

namespace folivar::python {

class Member;
class State;
struct Wrapper;

// What Python gives a member, as the library takes it. Lives for the call; what Python holds is
// only borrowed. The functions that take return false with Python's error set.
class Arguments {
 public:
  static constexpr std::size_t kMost = 16;

  explicit Arguments(const State& state) : state_(state) {}
  Arguments(const Arguments&) = delete;
  Arguments& operator=(const Arguments&) = delete;

  // The arguments of a method: first those without a name, then those that `names`, a tuple, tells;
  // null for none.
  bool Take(const Member& member, std::span<PyObject* const> given, PyObject* names);
  // The new value of a property.
  bool TakeValue(const Member& member, Wrapper& document, PyObject* newValue);

  folivar_value* Values() { return values_; }
  std::size_t Count() const { return count_; }

 private:
  bool TakeNamed(const Member& member, std::span<PyObject* const> given, PyObject* names);
  bool Convert(PyObject* object, std::int32_t type, folivar_value& value);
  // What is neither text nor number at first sight.
  bool ConvertOther(PyObject* object, std::int32_t type, folivar_value& value);

  const State& state_;
  std::size_t count_ = 0;
  folivar_value values_[kMost];  // not touched before they are needed
  Texts texts_;
};

}  // namespace folivar::python
