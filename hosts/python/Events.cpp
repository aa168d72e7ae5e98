#include "hosts/python/Events.h"

#include <cstdint>

#include "hosts/c/folivar.h"
#include "hosts/python/Call.h"
#include "hosts/python/Callback.h"
#include "hosts/python/HostValue.h"
#include "hosts/python/Member.h"
#include "hosts/python/Owned.h"
#include "hosts/python/State.h"
#include "hosts/python/Wrapper.h"

namespace folivar::python {
namespace {

// `subscription` is a tuple of the wrapper and the number of the subscription.
PyObject* Unsubscribe(PyObject* subscription, PyObject* /*nothing*/) {
  Wrapper& wrapper = Wrapper::Of(PyTuple_GetItem(subscription, 0));
  State& state = wrapper.type->TheState();
  const std::int64_t number = PyLong_AsLongLong(PyTuple_GetItem(subscription, 1));
  const bool isDone = Succeeded(state, folivar_unsubscribe(wrapper.handle, number));
  state.released.LetGo();
  return isDone ? Owned::Share(Py_None).Give() : nullptr;
}

PyMethodDef unsubscribe = {"unsubscribe", &Unsubscribe, METH_NOARGS,
                           "unsubscribe()\n--\n\nThe handler hears of the event no more"};

PyObject* Unsubscriber(PyObject* self, std::int64_t subscription) {
  const Owned number(PyLong_FromLongLong(subscription));
  const Owned both(number ? PyTuple_Pack(2, self, number.Get()) : nullptr);
  return both ? PyCFunction_NewEx(&unsubscribe, both.Get(), nullptr) : nullptr;
}

}  // namespace

PyObject* Subscribe(PyObject* self, const Member& event, std::span<PyObject* const> given,
                    PyObject* names) {
  if (given.size() != 1 || names != nullptr) {
    return PyErr_Format(PyExc_TypeError, "%s takes 1 argument, the handler", event.FullName());
  }
  PyObject* const handler = given.front();
  if (PyCallable_Check(handler) == 0) {
    return PyErr_Format(PyExc_TypeError, "%s: the handler is no function", event.FullName());
  }
  Wrapper& wrapper = Wrapper::Of(self);
  State& state = wrapper.type->TheState();
  HostValue* const function = HostValue::Make(state, handler);
  if (function == nullptr) return nullptr;
  function->JoinBefore(Wrapper::DocumentOf(self).values);
  const folivar_callback callback = CallbackTo(*function);
  std::int64_t subscription = 0;
  if (Succeeded(state, folivar_subscribe(wrapper.handle, event.Description().id, &callback,
                                         &subscription))) {
    return Unsubscriber(self, subscription);
  }
  state.released.LetGo();
  return nullptr;
}

}  // namespace folivar::python
