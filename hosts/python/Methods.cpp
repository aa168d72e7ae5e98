#include "hosts/python/Methods.h"

#include <array>
#include <span>
#include <utility>

#include "hosts/python/Call.h"
#include "hosts/python/Class.h"
#include "hosts/python/Events.h"
#include "hosts/python/Wrapper.h"

namespace folivar::python {
namespace {

template <std::size_t place>
PyObject* CallAt(PyObject* self, PyObject* const* arguments, Py_ssize_t unnamedCount,
                 PyObject* names) {
  const Py_ssize_t count = unnamedCount + (names == nullptr ? 0 : PyTuple_Size(names));
  const std::span given(arguments, static_cast<std::size_t>(count));
  const Member& member = Wrapper::Of(self).type->MethodAt(place);
  return member.IsEvent() ? Subscribe(self, member, given, names)
                          : Call(self, member, given, names);
}

using Function = decltype(&CallAt<0>);

template <std::size_t... places>
constexpr auto Table(std::index_sequence<places...> /*places*/) {
  return std::array<Function, sizeof...(places)>{&CallAt<places>...};
}

constexpr auto kTable = Table(std::make_index_sequence<Methods::kMost>());

}  // namespace

PyCFunction Methods::At(std::size_t place) {
  // As Python wants it: it knows by the flags what it really is.
  return place < kMost ? reinterpret_cast<PyCFunction>(reinterpret_cast<void*>(kTable[place]))
                       : nullptr;
}

}  // namespace folivar::python
