#pragma once

#include <Python.h>

#include <deque>
#include <utility>

#include "hosts/c/folivar.h"
#include "hosts/python/Class.h"
#include "hosts/python/Enumeration.h"
#include "hosts/python/ReleasedValues.h"

namespace folivar::python {

// What the module has made of the library's description when it was loaded. It lives until the
// program ends, since objects may outlive their module.
class State {
 public:
  explicit State(const folivar_library& described) : description(described) {}

  static State& Of(PyObject* module) { return **static_cast<State**>(PyModule_GetState(module)); }

  const Class& ClassOf(const folivar_object* handle) const {
    return classes[static_cast<std::size_t>(folivar_class_of(handle) - description.classes)];
  }
  // Null for types of others.
  const Class* ClassOf(const PyTypeObject* type) const;
  // Of a type of any import of the module.
  static const Class& ClassOfAny(const PyTypeObject* type);
  // Null for a name that no enumeration has.
  const Enumeration* EnumerationOf(const char* name) const;

  const folivar_library& description;
  std::deque<Enumeration> enumerations;
  std::deque<Class> classes;  // in the order of the description
  PyObject* error = nullptr;  // folivar.Error
  // What hears of the warnings of documents that are made from now on; null for what the
  // environment says.
  PyObject* warnings = nullptr;
  ReleasedValues released;

 private:
  static inline constinit const State* newest_ = nullptr;

  const State* const earlier_ = std::exchange(newest_, this);  // of an earlier import
};

}  // namespace folivar::python
