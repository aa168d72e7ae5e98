#include "hosts/python/Call.h"

#include <cstring>
#include <utility>

#include "hosts/python/Arguments.h"
#include "hosts/python/InterpreterLock.h"
#include "hosts/python/KeptError.h"
#include "hosts/python/Member.h"
#include "hosts/python/Owned.h"
#include "hosts/python/Results.h"
#include "hosts/python/State.h"
#include "hosts/python/Texts.h"
#include "hosts/python/Thrown.h"
#include "hosts/python/Wrapper.h"

namespace folivar::python {
namespace {

// What a member gives: the numbers that it has filled in, or its result.
PyObject* Result(const State& state, const Member& member, const folivar_value* arguments,
                 const folivar_value& result) {
  if (member.FilledType() == nullptr) {
    return Results::ValueOf(state, result, member.ResultEnumeration());
  }
  return Results::TupleOf(*member.FilledType(), arguments + member.GivenCount(),
                          member.Parameters().size() - member.GivenCount());
}

// What the library tells of the call that failed last.
void RaiseLastError(const State& state) {
  const folivar_error& last = *folivar_last_error();
  const Owned text(Texts::FromUtf8(last.text, std::strlen(last.text)));
  const Owned member(Texts::FromUtf8(last.member, std::strlen(last.member)));
  const Owned number(PyLong_FromLong(last.number));
  if (!text || !member || !number) return;
  const Owned error(PyObject_CallFunctionObjArgs(state.error, text.Get(), nullptr));
  if (error && PyObject_SetAttrString(error.Get(), "number", number.Get()) == 0 &&
      PyObject_SetAttrString(error.Get(), "member", member.Get()) == 0) {
    PyErr_SetObject(state.error, error.Get());
  }
}

}  // namespace

PyObject* Invoke(PyObject* self, const Member& member, folivar_action action,
                 folivar_value* arguments, std::size_t count) {
  Wrapper& wrapper = Wrapper::Of(self);
  State& state = wrapper.type->TheState();
  folivar_value result;
  const auto invoke = [&] {
    return folivar_invoke(wrapper.handle, member.Description().id, action | FOLIVAR_GIVE_UTF16,
                          arguments, count, &result);
  };
  const std::int32_t number = member.IsLong() ? InterpreterLock::Without(invoke) : invoke();

  PyObject* given = nullptr;
  if (Succeeded(state, number)) {
    given = Result(state, member, arguments, result);
    folivar_clear(&result);
  }
  state.released.LetGo();
  return given;
}

PyObject* Get(PyObject* self, const Member& property) {
  return Invoke(self, property, FOLIVAR_GET, nullptr, 0);
}

PyObject* Call(PyObject* self, const Member& member, std::span<PyObject* const> given,
               PyObject* names) {
  Arguments arguments(Wrapper::Of(self).type->TheState());
  if (!arguments.Take(member, given, names)) return nullptr;
  return Invoke(self, member, member.Does(FOLIVAR_CALL) ? FOLIVAR_CALL : FOLIVAR_GET,
                arguments.Values(), arguments.Count());
}

int Set(PyObject* self, const Member& property, PyObject* newValue) {
  if (newValue == nullptr) {
    PyErr_Format(PyExc_AttributeError, "%s cannot be deleted", property.FullName());
    return -1;
  }
  Arguments arguments(Wrapper::Of(self).type->TheState());
  if (!arguments.TakeValue(property, Wrapper::DocumentOf(self), newValue)) return -1;
  const Owned nothing(Invoke(self, property, FOLIVAR_SET, arguments.Values(), arguments.Count()));
  return nothing ? 0 : -1;
}

bool Succeeded(const State& state, std::int32_t number) {
  PyObject* const thrown = std::exchange(Thrown::Waiting(), nullptr);
  if (number == Thrown::kNumber) {
    Thrown::Raise(thrown);
    return false;
  }
  if (number != 0) RaiseLastError(state);
  if (thrown != nullptr) {
    const KeptError own;
    Thrown::Report(thrown);
  }
  return number == 0;
}

}  // namespace folivar::python
