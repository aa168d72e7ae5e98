#include "hosts/node/Invocation.h"

#include <algorithm>
#include <array>

#include "hosts/node/Values.h"

namespace folivar::node {
namespace {

// What a callback that has thrown returns; no error has this number.
constexpr std::int32_t kThrown = -1;

// As many as a callback has.
constexpr std::size_t kMostArguments = 4;

}  // namespace

Invocation::Invocation(Environment& environment)
    : environment_(environment), outer_(environment.Current()) {
  environment_.SetCurrent(this);
}

Invocation::~Invocation() { environment_.SetCurrent(outer_); }

void Invocation::Finish(std::int32_t number) {
  if (number == kThrown) {
    Check(environment_.Env(), napi_throw(environment_.Env(), thrown_));
    throw Thrown();
  }
  if (thrown_ != nullptr) environment_.Report(thrown_);
  if (number != 0) environment_.ThrowLastError();
}

folivar_callback Invocation::CallbackTo(HostValues& values, napi_value function) {
  return {Call, HostValues::Kept::Release, values.Keep(function)};
}

std::int32_t Invocation::Call(void* kept, const folivar_value* arguments, std::size_t count) {
  const auto& function = *static_cast<HostValues::Kept*>(kept);
  Environment& environment = function.TheEnvironment();
  napi_env env = environment.Env();
  Invocation& current = *environment.Current();
  try {
    current.CallFunction(function.Value(), arguments, count);
    return 0;
  } catch (const Thrown&) {
    napi_value thrown = nullptr;
    napi_get_and_clear_last_exception(env, &thrown);
    if (current.thrown_ == nullptr) current.thrown_ = thrown;
    return kThrown;
  }
}

void Invocation::CallFunction(napi_value function, const folivar_value* arguments,
                              std::size_t count) {
  napi_env env = environment_.Env();
  napi_value receiver = nullptr;
  Check(env, napi_get_undefined(env, &receiver));
  std::array<napi_value, kMostArguments> values{};
  const std::size_t given = std::min(count, values.size());
  for (std::size_t i = 0; i < given; ++i) values.at(i) = ValueOf(environment_, arguments[i]);
  Check(env, napi_call_function(env, receiver, function, given, values.data(), nullptr));
}

}  // namespace folivar::node
