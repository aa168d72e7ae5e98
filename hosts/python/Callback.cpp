#include "hosts/python/Callback.h"

#include <cstddef>
#include <cstdint>
#include <utility>

#include "hosts/python/HostValue.h"
#include "hosts/python/InterpreterLock.h"
#include "hosts/python/Owned.h"
#include "hosts/python/Results.h"
#include "hosts/python/Thrown.h"

namespace folivar::python {
namespace {

Owned TupleOf(const State& state, const folivar_value* values, std::size_t count) {
  Owned tuple(PyTuple_New(static_cast<Py_ssize_t>(count)));
  for (std::size_t i = 0; tuple && i < count; ++i) {
    PyObject* const value = Results::ValueOf(state, values[i], nullptr);
    if (value == nullptr) return {};
    PyTuple_SetItem(tuple.Get(), static_cast<Py_ssize_t>(i), value);
  }
  return tuple;
}

std::int32_t CallWithLock(const HostValue& host, const folivar_value* arguments,
                          std::size_t count) {
  // The function may make the library need it no more.
  const Owned function = Owned::Share(host.Object());
  if (!function) return 0;  // the garbage collector has been there

  // What others have thrown is not for the members that this one calls.
  PyObject* const earlier = std::exchange(Thrown::Waiting(), nullptr);
  const Owned given = TupleOf(host.TheState(), arguments, count);
  const Owned result(given ? PyObject_CallObject(function.Get(), given.Get()) : nullptr);
  PyObject* const thrown = result ? nullptr : Thrown::Take();
  if (earlier != nullptr && thrown != nullptr) Thrown::Report(thrown);
  Thrown::Waiting() = earlier != nullptr ? earlier : thrown;
  return result ? 0 : Thrown::kNumber;
}

std::int32_t CallFunction(void* context, const folivar_value* arguments, std::size_t count) {
  return InterpreterLock::With(
      [&] { return CallWithLock(*static_cast<HostValue*>(context), arguments, count); });
}

}  // namespace

folivar_callback CallbackTo(HostValue& function) {
  return {&CallFunction, &HostValue::Release, &function};
}

}  // namespace folivar::python
