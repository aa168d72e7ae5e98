#include "hosts/python/Results.h"

#include "hosts/python/Enumeration.h"
#include "hosts/python/HostValue.h"
#include "hosts/python/Owned.h"
#include "hosts/python/Texts.h"
#include "hosts/python/Wrapper.h"

namespace folivar::python {
namespace {

PyObject* Share(PyObject* object) { return Owned::Share(object).Give(); }

PyObject* ListOf(const State& state, const folivar_value& array) {
  Owned list(PyList_New(static_cast<Py_ssize_t>(array.with.length)));
  if (!list) return nullptr;
  for (std::size_t i = 0; i < array.with.length; ++i) {
    PyObject* const element = Results::ValueOf(state, array.as.values[i], nullptr);
    if (element == nullptr) return nullptr;
    PyList_SetItem(list.Get(), static_cast<Py_ssize_t>(i), element);
  }
  return list.Give();
}

// Of a tag; nothing where the garbage collector has been.
PyObject* HostObject(const void* host) {
  PyObject* const object = static_cast<const HostValue*>(host)->Object();
  return Share(object != nullptr ? object : Py_None);
}

}  // namespace

PyObject* Results::ValueOf(const State& state, const folivar_value& value,
                           const Enumeration* enumeration) {
  switch (value.kind) {
    case FOLIVAR_FLAG:
      return PyBool_FromLong(value.as.integer != 0 ? 1 : 0);
    case FOLIVAR_INTEGER:
      return enumeration != nullptr ? enumeration->ValueOf(value.as.integer)
                                    : PyLong_FromLongLong(value.as.integer);
    case FOLIVAR_NUMBER:
      return PyFloat_FromDouble(value.as.number);
    case FOLIVAR_TEXT:
      return Texts::FromUtf8(value.as.text, value.with.length);
    case FOLIVAR_UTF16:
      return Texts::FromUtf16(value.as.utf16, value.with.length);
    case FOLIVAR_OBJECT:
      return Wrapper::Wrap(state, value.as.object);
    case FOLIVAR_ARRAY:
      return ListOf(state, value);
    case FOLIVAR_HOST:
      return HostObject(value.as.host);
    default:
      return Share(Py_None);
  }
}

PyObject* Results::TupleOf(PyTypeObject& type, const folivar_value* values, std::size_t count) {
  Owned tuple(PyStructSequence_New(&type));
  if (!tuple) return nullptr;
  for (std::size_t i = 0; i < count; ++i) {
    PyObject* const number = PyFloat_FromDouble(values[i].as.number);
    if (number == nullptr) return nullptr;
    PyStructSequence_SetItem(tuple.Get(), static_cast<Py_ssize_t>(i), number);
  }
  return tuple.Give();
}

}  // namespace folivar::python
