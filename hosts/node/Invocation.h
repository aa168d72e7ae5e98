#pragma once

#include <cstddef>
#include <cstdint>

#include "hosts/node/Environment.h"
#include "hosts/node/HostValues.h"

namespace folivar::node {

// A call of the library, in which it may call functions of JavaScript's: handlers of events, and
// the function that warnings go to. What the first of them throws comes out of the call.
class Invocation {
 public:
  explicit Invocation(Environment& environment);
  ~Invocation();
  Invocation(const Invocation&) = delete;
  Invocation& operator=(const Invocation&) = delete;

  // Ends the call with the number that the library has returned.
  void Finish(std::int32_t number);

  // A callback of the library that calls `function`, which the document keeps.
  static folivar_callback CallbackTo(HostValues& values, napi_value function);

 private:
  static std::int32_t Call(void* kept, const folivar_value* arguments, std::size_t count);
  void CallFunction(napi_value function, const folivar_value* arguments, std::size_t count);

  Environment& environment_;
  Invocation* outer_;
  napi_value thrown_ = nullptr;  // by the first that threw
};

}  // namespace folivar::node
