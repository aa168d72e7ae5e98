#include "hosts/python/Collection.h"

#include "hosts/python/Call.h"
#include "hosts/python/Class.h"
#include "hosts/python/Owned.h"
#include "hosts/python/Wrapper.h"

namespace folivar::python {
namespace {

const Class& TypeOf(PyObject* self) { return *Wrapper::Of(self).type; }

}  // namespace

PyObject* Collection::Call(PyObject* self, PyObject* positional, PyObject* names) {
  const Owned item(PyObject_GetAttrString(self, TypeOf(self).Item()->Name()));
  return item ? PyObject_Call(item.Get(), positional, names) : nullptr;
}

PyObject* Collection::ItemAt(PyObject* self, PyObject* key) {
  return python::Call(self, *TypeOf(self).Item(), {&key, 1}, nullptr);
}

Py_ssize_t Collection::Length(PyObject* self) {
  const Owned count(Get(self, *TypeOf(self).Count()));
  return count ? PyLong_AsSsize_t(count.Get()) : -1;
}

int Collection::Contains(PyObject* self, PyObject* key) {
  const Owned exists(python::Call(self, *TypeOf(self).KeyExists(), {&key, 1}, nullptr));
  return exists ? PyObject_IsTrue(exists.Get()) : -1;
}

PyObject* Collection::Iterate(PyObject* self) {
  const Owned members(Get(self, *TypeOf(self).Elements()));
  return members ? PyObject_GetIter(members.Get()) : nullptr;
}

}  // namespace folivar::python
