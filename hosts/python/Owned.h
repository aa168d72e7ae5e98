#pragma once

#include <Python.h>

#include <utility>

namespace folivar::python {

// A reference to a Python object that is let go of at the end of the scope; null for none.
class Owned {
 public:
  Owned() = default;
  // Takes over the reference that a function of Python's has given.
  explicit Owned(PyObject* object) : object_(object) {}
  Owned(Owned&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  Owned& operator=(Owned&& other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;
  ~Owned() { Py_XDECREF(object_); }

  // One reference more to what others have.
  static Owned Share(PyObject* object) {
    Py_XINCREF(object);
    return Owned(object);
  }

  PyObject* Get() const { return object_; }
  PyObject* Give() { return std::exchange(object_, nullptr); }
  explicit operator bool() const { return object_ != nullptr; }

 private:
  PyObject* object_ = nullptr;
};

}  // namespace folivar::python
