#pragma once

#include <folivar.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "Argument.h"
#include "Interfaces.h"
#include "Member.h"
#include "Result.h"

namespace facade {

// Raises what a function of the C library failed with, as the library does.
void RaiseIfFailed(std::int32_t number);

void Invoke(folivar_object* object, const Member& member, const std::vector<Argument>& arguments,
            Result& result);

// An object of the C library, which it holds. Members are those of the automation interface, by
// their dispatch identifiers.
template <class Interface>
class Handle {
 public:
  // Takes over what the caller holds.
  explicit Handle(folivar_object* held) : held_(held) {}

  // A method without a result, or a property that is set.
  template <class... Arguments>
  void Call(const Member* member, const Arguments&... arguments) const {
    Result nothing;
    Invoke(held_.get(), *member, {Pass(arguments)...}, nothing);
  }

  template <class Wanted, class... Arguments>
  Wanted Get(const Member* member, const Arguments&... arguments) const {
    Result result;
    Invoke(held_.get(), *member, {Pass(arguments)...}, result);
    return result.As<Wanted>();
  }

  // Another object, if there is one.
  template <class Other, class... Arguments>
  std::optional<Handle<Other>> Reach(const Member* member, const Arguments&... arguments) const {
    Result result;
    Invoke(held_.get(), *member, {Pass(arguments)...}, result);
    folivar_object* reached = result.TakeObject();
    if (reached == nullptr) return std::nullopt;
    return Handle<Other>(reached);
  }

 private:
  template <class Other>
  friend class Handle;

  struct Release {
    void operator()(folivar_object* object) const { folivar_release(object); }
  };

  template <class Passed>
  static Argument Pass(const Passed& argument) {
    return argument;
  }
  template <class Other>
  static Argument Pass(const Handle<Other>* object) {
    return Argument(object == nullptr ? nullptr : object->held_.get());
  }

  std::unique_ptr<folivar_object, Release> held_;
};

}  // namespace facade
