#include "hosts/python/Creation.h"

#include "hosts/c/folivar.h"
#include "hosts/python/Call.h"
#include "hosts/python/Callback.h"
#include "hosts/python/HostValue.h"
#include "hosts/python/Owned.h"
#include "hosts/python/State.h"
#include "hosts/python/Wrapper.h"

namespace folivar::python {

PyObject* Creation::Create(PyTypeObject* type, PyObject* positional, PyObject* names) {
  const Class& wanted = State::ClassOfAny(type);
  if (PyTuple_Size(positional) != 0 || (names != nullptr && PyDict_Size(names) != 0)) {
    return PyErr_Format(PyExc_TypeError, "%s takes no arguments", wanted.Name());
  }
  State& state = wanted.TheState();
  HostValue* warnings = nullptr;
  folivar_callback callback = {};
  if (state.warnings != nullptr) {
    warnings = HostValue::Make(state, state.warnings);
    if (warnings == nullptr) return nullptr;
    callback = CallbackTo(*warnings);
  }
  folivar_object* handle = nullptr;
  PyObject* made = nullptr;
  if (Succeeded(state, folivar_create(wanted.Name(), warnings != nullptr ? &callback : nullptr,
                                      &handle))) {
    made = Wrapper::Wrap(state, handle);
    if (made != nullptr && warnings != nullptr) warnings->JoinBefore(Wrapper::Of(made).values);
    folivar_release(handle);
  }
  state.released.LetGo();
  return made;
}

PyObject* Creation::Refuse(PyTypeObject* type, PyObject* /*positional*/, PyObject* /*names*/) {
  const Owned name(PyObject_GetAttrString(reinterpret_cast<PyObject*>(type), "__name__"));
  return name ? PyErr_Format(PyExc_TypeError, "%U cannot be created: it belongs to a document",
                             name.Get())
              : nullptr;
}

}  // namespace folivar::python
