#pragma once

#include <Python.h>

#include <utility>

#include "folivar/base/RingLink.h"
#include "hosts/python/ReleasedValues.h"

namespace folivar::python {

class State;

// What Python gives the library to keep: the value of a tag, a handler, the function that hears of
// warnings. The library knows it by its address and says when it needs it no more.
//
// It stands in a ring with the wrapper of its document, which so can show Python's garbage
// collector all that is reachable through the library: a document whose tag leads back to it is
// collected.
class HostValue : public RingLink {
 public:
  // Null without memory, with Python's error set.
  static HostValue* Make(State& state, PyObject* object);

  // What the library is given, to say that it needs the value no more. Comes from whatever thread,
  // and in the midst of the library's work, where no Python code may run.
  static void Release(void* value);

  State& TheState() const { return state_; }

  // Null once the garbage collector has cleared it.
  PyObject* Object() const { return object_; }
  void Clear() { Py_XDECREF(std::exchange(object_, nullptr)); }

 private:
  friend class ReleasedValues;

  HostValue(State& state, PyObject* object) : state_(state), object_(object) { Py_INCREF(object); }
  ~HostValue() { Leave(); }

  State& state_;
  PyObject* object_;
  HostValue* nextReleased_ = nullptr;
};

}  // namespace folivar::python
