#include "hosts/python/Wrapper.h"

#include <new>

#include "hosts/python/Call.h"
#include "hosts/python/HostValue.h"
#include "hosts/python/Owned.h"
#include "hosts/python/State.h"

namespace folivar::python {
namespace {

PyObject* WrapperIn(void** slot) { return Owned::Share(static_cast<PyObject*>(*slot)).Give(); }

void Free(PyObject* self) {
  const Owned type(reinterpret_cast<PyObject*>(Py_TYPE(self)));
  PyObject_GC_UnTrack(self);
  PyObject_GC_Del(self);
}

}  // namespace

PyObject* Wrapper::Wrap(const State& state, folivar_object* handle) {
  void** const slot = folivar_slot(handle);
  if (*slot != nullptr) return WrapperIn(slot);
  folivar_object* const document = folivar_document(handle);
  Owned wrapperOfDocument(document == handle ? nullptr : Wrap(state, document));
  if (document != handle && !wrapperOfDocument) return nullptr;

  const Class& type = state.ClassOf(handle);
  PyObject* const self = PyType_GenericAlloc(type.Type(), 0);
  if (self == nullptr) return nullptr;
  // Making it may have woken the garbage collector, and that any code.
  if (*slot != nullptr) {
    Free(self);
    return WrapperIn(slot);
  }
  Wrapper& made = Of(self);
  new (&made.values) RingLink;
  folivar_retain(handle);
  made.handle = handle;
  made.type = &type;
  made.document = reinterpret_cast<Wrapper*>(wrapperOfDocument.Give());
  *slot = self;
  return self;
}

void Wrapper::Deallocate(PyObject* self) {
  PyObject_GC_UnTrack(self);
  Wrapper& wrapper = Of(self);
  // From here on a new wrapper is made for the object, whatever code runs.
  *folivar_slot(wrapper.handle) = nullptr;
  if (wrapper.weakReferences != nullptr) PyObject_ClearWeakRefs(self);
  // Where the library keeps values of a document that is gone here, they stay without it.
  wrapper.values.Leave();
  folivar_release(wrapper.handle);
  ReleasedValues& released = wrapper.type->TheState().released;
  auto* const document = reinterpret_cast<PyObject*>(wrapper.document);

  Free(self);
  Py_XDECREF(document);
  released.LetGo();
}

int Wrapper::Traverse(PyObject* self, visitproc visit, void* arg) {
  Wrapper& wrapper = Of(self);
  Py_VISIT(reinterpret_cast<PyObject*>(Py_TYPE(self)));
  Py_VISIT(reinterpret_cast<PyObject*>(wrapper.document));
  const RingLink* link = &wrapper.values.Next();
  for (; link != &wrapper.values; link = &link->Next()) {
    Py_VISIT(static_cast<const HostValue*>(link)->Object());
  }
  return 0;
}

int Wrapper::Clear(PyObject* self) {
  RingLink& values = Of(self).values;
  while (&values.Next() != &values) {
    auto& value = static_cast<HostValue&>(values.Next());
    value.Leave();
    value.Clear();
  }
  return 0;
}

PyObject* Wrapper::Represent(PyObject* self) {
  const Class& type = *Of(self).type;
  const Owned key(type.Key() == nullptr ? nullptr : Get(self, *type.Key()));
  PyErr_Clear();  // another thread may be using the document
  const bool isKnown = key && PyUnicode_GetLength(key.Get()) > 0;
  return isKnown ? PyUnicode_FromFormat("<%s %R>", type.FullName(), key.Get())
                 : PyUnicode_FromFormat("<%s>", type.FullName());
}

}  // namespace folivar::python
