#pragma once

#include <Python.h>

#include "folivar/base/RingLink.h"
#include "hosts/c/folivar.h"

namespace folivar::python {

class Class;
class State;

// What stands for an object of the library in Python. It is in the slot of the object, so the same
// object is always the same wrapper, and is made anew when nobody held it meanwhile. It holds the
// wrapper of its document, which knows what Python has given to any object of the document.
struct Wrapper {
  PyObject_HEAD folivar_object* handle;  // held
  const Class* type;
  Wrapper* document;  // null in that of a document
  PyObject* weakReferences;
  RingLink values;  // of a document, a ring with its HostValues

  static Wrapper& Of(PyObject* self) { return *reinterpret_cast<Wrapper*>(self); }
  static Wrapper& DocumentOf(PyObject* self) {
    Wrapper& wrapper = Of(self);
    return wrapper.document != nullptr ? *wrapper.document : wrapper;
  }

  // The wrapper of an object, which may be borrowed for the call. A new reference.
  static PyObject* Wrap(const State& state, folivar_object* handle);

  // What the types are made of.
  static void Deallocate(PyObject* self);
  static int Traverse(PyObject* self, visitproc visit, void* arg);
  static int Clear(PyObject* self);
  static PyObject* Represent(PyObject* self);
};

}  // namespace folivar::python
