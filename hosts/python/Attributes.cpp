#include "hosts/python/Attributes.h"

#include <cstddef>
#include <string_view>

#include "hosts/python/Class.h"
#include "hosts/python/KeptError.h"
#include "hosts/python/Member.h"
#include "hosts/python/Names.h"
#include "hosts/python/Owned.h"
#include "hosts/python/Wrapper.h"

namespace folivar::python {
namespace {

// The nearest member, as long as half of it is right; null for none.
const Member* Nearest(const Class& type, std::string_view name) {
  const Member* nearest = nullptr;
  std::size_t least = name.size() / 2 + 1;
  for (const Member& member : type.Members()) {
    const std::size_t distance = Names::Distance(name, member.Name());
    if (distance >= least) continue;
    nearest = &member;
    least = distance;
  }
  return nearest;
}

void RaiseUnknown(const Class& type, PyObject* name, std::string_view text) {
  if (const Member* const nearest = Nearest(type, text)) {
    PyErr_Format(PyExc_AttributeError, "%s has no member %R; did you mean '%s'?", type.Name(), name,
                 nearest->Name());
  } else {
    PyErr_Format(PyExc_AttributeError, "%s has no member %R", type.Name(), name);
  }
}

// After Python's own way has failed with an AttributeError: the name as it is spelled. None, with
// the error set that tells more, if that is the name already or nothing has it.
Owned Spelled(const Class& type, PyObject* name) {
  KeptError own;
  const Owned utf8(PyUnicode_AsUTF8String(name));
  PyErr_Clear();  // lone surrogates are in no name
  const std::string_view text = Names::TextIn(utf8);
  if (text.starts_with("__")) return {};
  const Member* const member = type.Find(text);
  if (member != nullptr && member->Name() == text) return {};
  own.Drop();
  if (member != nullptr) return Owned(PyUnicode_FromString(member->Name()));
  RaiseUnknown(type, name, text);
  return {};
}

}  // namespace

PyObject* Attributes::Get(PyObject* self, PyObject* name) {
  PyObject* const value = PyObject_GenericGetAttr(self, name);
  if (value != nullptr || PyErr_ExceptionMatches(PyExc_AttributeError) == 0) return value;
  const Owned spelled = Spelled(*Wrapper::Of(self).type, name);
  return spelled ? PyObject_GenericGetAttr(self, spelled.Get()) : nullptr;
}

int Attributes::Set(PyObject* self, PyObject* name, PyObject* newValue) {
  if (PyObject_GenericSetAttr(self, name, newValue) == 0) return 0;
  if (PyErr_ExceptionMatches(PyExc_AttributeError) == 0) return -1;
  const Owned spelled = Spelled(*Wrapper::Of(self).type, name);
  return spelled ? PyObject_GenericSetAttr(self, spelled.Get(), newValue) : -1;
}

}  // namespace folivar::python
