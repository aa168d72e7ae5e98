#include "hosts/python/Enumeration.h"

#include <span>

#include "hosts/python/Owned.h"

namespace folivar::python {
namespace {

// {"htaLeft": 0, ...}
Owned ValuesByName(std::span<const folivar_constant> constants) {
  Owned values(PyDict_New());
  for (const folivar_constant& constant : constants) {
    const Owned value(PyLong_FromLong(constant.value));
    if (!values || !value || PyDict_SetItemString(values.Get(), constant.name, value.Get()) != 0) {
      return {};
    }
  }
  return values;
}

// enum.IntEnum(name, values, module="folivar")
Owned MakeType(const folivar_enumeration& description, const Owned& values) {
  const Owned enums(PyImport_ImportModule("enum"));
  const Owned base(enums ? PyObject_GetAttrString(enums.Get(), "IntEnum") : nullptr);
  const Owned arguments(base ? Py_BuildValue("(sO)", description.name, values.Get()) : nullptr);
  const Owned names(arguments ? Py_BuildValue("{ss}", "module", "folivar") : nullptr);
  Owned type(names ? PyObject_Call(base.Get(), arguments.Get(), names.Get()) : nullptr);
  const Owned help(type ? PyUnicode_FromString(description.help) : nullptr);
  if (!help || PyObject_SetAttrString(type.Get(), "__doc__", help.Get()) != 0) return {};
  return type;
}

}  // namespace

bool Enumeration::AddTo(PyObject* module) {
  const std::span constants(description_.constants, description_.constant_count);
  const Owned values = ValuesByName(constants);
  const Owned type = values ? MakeType(description_, values) : Owned();
  members_ = PyDict_New();
  if (!type || members_ == nullptr ||
      PyObject_SetAttrString(module, description_.name, type.Get()) != 0) {
    return false;
  }
  for (const folivar_constant& constant : constants) {
    const Owned member(PyObject_GetAttrString(type.Get(), constant.name));
    if (!member || PyDict_SetItem(members_, member.Get(), member.Get()) != 0 ||
        PyObject_SetAttrString(module, constant.name, member.Get()) != 0) {
      return false;
    }
  }
  return true;
}

PyObject* Enumeration::ValueOf(std::int64_t number) const {
  PyObject* const value = PyLong_FromLongLong(number);
  if (value == nullptr) return nullptr;
  PyObject* const member = PyDict_GetItem(members_, value);
  if (member == nullptr) return value;
  Py_INCREF(member);
  Py_DECREF(value);
  return member;
}

}  // namespace folivar::python
