#include "hosts/python/Arguments.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "hosts/python/HostValue.h"
#include "hosts/python/Member.h"
#include "hosts/python/Names.h"
#include "hosts/python/Owned.h"
#include "hosts/python/State.h"
#include "hosts/python/Wrapper.h"

namespace folivar::python {
namespace {

bool HasMethod(PyObject* object, const char* name) {
  return PyObject_HasAttrString(reinterpret_cast<PyObject*>(Py_TYPE(object)), name) != 0;
}

// Kind and number are written where they go: put together elsewhere and copied they would cost as
// much again as the whole call of this function.
void PutInteger(folivar_value& value, std::int64_t integer) {
  value.kind = FOLIVAR_INTEGER;
  value.as.integer = integer;
}

void PutNumber(folivar_value& value, double number) {
  value.kind = FOLIVAR_NUMBER;
  value.as.number = number;
}

// A whole number of any size; what 64 bits cannot hold is the nearest number that there is, so that
// the library says that it is too large.
bool ConvertWhole(PyObject* whole, folivar_value& value) {
  int beyond = 0;
  const long long integer = PyLong_AsLongLongAndOverflow(whole, &beyond);
  if (beyond == 0) {
    PutInteger(value, integer);
    return integer != -1 || PyErr_Occurred() == nullptr;
  }
  PutNumber(value, PyLong_AsDouble(whole));
  if (value.as.number != -1 || PyErr_Occurred() == nullptr) return true;
  PyErr_Clear();
  PutNumber(value, beyond * std::numeric_limits<double>::max());
  return true;
}

bool ConvertNumber(PyObject* object, folivar_value& value) {
  PutNumber(value, PyFloat_AsDouble(object));
  return value.as.number != -1 || PyErr_Occurred() == nullptr;
}

bool WrongCount(const Member& member, std::size_t given) {
  const std::size_t most = member.GivenCount();
  PyErr_Format(PyExc_TypeError, "%s takes %s%zu argument%s, not %zu", member.FullName(),
               member.RequiredCount() < most ? "at most " : "", most, most == 1 ? "" : "s", given);
  return false;
}

}  // namespace

bool Arguments::Take(const Member& member, std::span<PyObject* const> given, PyObject* names) {
  const auto namedCount = names == nullptr ? 0 : static_cast<std::size_t>(PyTuple_Size(names));
  const auto unnamed = given.first(given.size() - namedCount);
  if (unnamed.size() > member.GivenCount()) return WrongCount(member, unnamed.size());
  const auto parameters = member.Parameters();
  for (std::size_t i = 0; i < unnamed.size(); ++i) {
    if (!Convert(unnamed[i], parameters[i].type, values_[i])) return false;
  }
  count_ = parameters.size();
  for (std::size_t i = unnamed.size(); i < count_; ++i) values_[i].kind = FOLIVAR_MISSING;
  if (namedCount > 0 && !TakeNamed(member, given, names)) return false;
  for (std::size_t i = unnamed.size(); i < member.RequiredCount(); ++i) {
    if (values_[i].kind != FOLIVAR_MISSING) continue;
    PyErr_Format(PyExc_TypeError, "%s: argument '%s' is missing", member.FullName(),
                 parameters[i].name);
    return false;
  }
  return true;
}

bool Arguments::TakeNamed(const Member& member, std::span<PyObject* const> given, PyObject* names) {
  const auto parameters = member.Parameters().first(member.GivenCount());
  const auto namedCount = static_cast<std::size_t>(PyTuple_Size(names));
  const auto unnamedCount = given.size() - namedCount;
  bool isGiven[kMost] = {};
  std::fill_n(isGiven, unnamedCount, true);
  for (std::size_t named = 0; named < namedCount; ++named) {
    PyObject* const name = PyTuple_GetItem(names, static_cast<Py_ssize_t>(named));
    const std::size_t i = Names::Find(parameters, name);
    if (i == parameters.size()) {
      PyErr_Format(PyExc_TypeError, "%s has no argument %R", member.FullName(), name);
      return false;
    }
    if (std::exchange(isGiven[i], true)) {
      PyErr_Format(PyExc_TypeError, "%s: argument '%s' is given twice", member.FullName(),
                   parameters[i].name);
      return false;
    }
    if (!Convert(given[unnamedCount + named], parameters[i].type, values_[i])) return false;
  }
  return true;
}

bool Arguments::TakeValue(const Member& member, Wrapper& document, PyObject* newValue) {
  count_ = 1;
  if (!member.IsTag() || newValue == Py_None) {
    return Convert(newValue, member.Description().type, values_[0]);
  }
  HostValue* const made = HostValue::Make(document.type->TheState(), newValue);
  if (made == nullptr) return false;
  made->JoinBefore(document.values);
  values_[0].kind = FOLIVAR_HOST;
  values_[0].as.host = made;
  values_[0].with.release = &HostValue::Release;
  return true;
}

bool Arguments::Convert(PyObject* object, std::int32_t type, folivar_value& value) {
  const PyTypeObject* const kind = Py_TYPE(object);
  if (kind == &PyUnicode_Type) return texts_.Convert(object, value);
  if (kind == &PyFloat_Type) return ConvertNumber(object, value);
  if (kind == &PyLong_Type) return ConvertWhole(object, value);
  if (kind == &PyBool_Type) {
    value = folivar_flag(object == Py_True);
  } else if (object == Py_None) {
    value = folivar_null();
  } else if (state_.ClassOf(kind) != nullptr) {
    value = folivar_of(Wrapper::Of(object).handle);
  } else {
    return ConvertOther(object, type, value);
  }
  return true;
}

bool Arguments::ConvertOther(PyObject* object, std::int32_t type, folivar_value& value) {
  if (PyUnicode_Check(object)) return texts_.Convert(object, value);
  if (type == FOLIVAR_TYPE_TEXT && HasMethod(object, "__fspath__")) {
    const Owned path(PyOS_FSPath(object));
    if (!path) return false;
    if (PyUnicode_Check(path.Get())) return texts_.ConvertCopy(path.Get(), value);
  } else if (HasMethod(object, "__index__")) {
    const Owned whole(PyNumber_Index(object));
    return whole && ConvertWhole(whole.Get(), value);
  } else if (HasMethod(object, "__float__")) {
    if (ConvertNumber(object, value)) return true;
    if (PyErr_ExceptionMatches(PyExc_TypeError) == 0) return false;
    PyErr_Clear();  // no number, after all: a complex one
  }
  // Anything else is for the library to refuse, as what no argument is.
  value = folivar_missing();
  value.kind = FOLIVAR_ARRAY;
  return true;
}

}  // namespace folivar::python
