#include "hosts/python/HostValue.h"

#include <new>

#include "hosts/python/State.h"

namespace folivar::python {

HostValue* HostValue::Make(State& state, PyObject* object) {
  auto* const made = new (std::nothrow) HostValue(state, object);
  if (made == nullptr) PyErr_NoMemory();
  return made;
}

void HostValue::Release(void* value) {
  auto& released = *static_cast<HostValue*>(value);
  released.state_.released.Add(released);
}

}  // namespace folivar::python
