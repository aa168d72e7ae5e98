#pragma once

#include <node_api.h>

#include <exception>
#include <string>

namespace folivar::node {

// A JavaScript exception is on its way, which Node-API keeps until the function that JavaScript
// called has returned.
struct Thrown {};

// Throws what a function of Node-API says that has failed.
[[noreturn]] void ThrowFailure(napi_env env);
inline void Check(napi_env env, napi_status status) {
  if (status != napi_ok) ThrowFailure(env);
}

[[noreturn]] void ThrowTypeError(napi_env env, const std::string& message);

napi_valuetype TypeOf(napi_env env, napi_value value);
std::string Utf8Of(napi_env env, napi_value text);

// Runs the body of a function that JavaScript calls. Nothing else may be thrown into Node.
template <class Body>
napi_value Guarded(napi_env env, Body body) {
  try {
    return body();
  } catch (const Thrown&) {
    return nullptr;
  } catch (const std::exception& error) {
    napi_throw_error(env, nullptr, error.what());
    return nullptr;
  }
}

}  // namespace folivar::node
