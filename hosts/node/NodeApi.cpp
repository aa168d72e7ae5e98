#include "hosts/node/NodeApi.h"

#include <cstddef>

namespace folivar::node {

void ThrowFailure(napi_env env) {
  const napi_extended_error_info* info = nullptr;
  napi_get_last_error_info(env, &info);
  // Where an exception is on its way already, as when a thread is being ended, this does nothing.
  napi_throw_error(env, nullptr, info->error_message);
  throw Thrown();
}

void ThrowTypeError(napi_env env, const std::string& message) {
  napi_throw_type_error(env, nullptr, message.c_str());
  throw Thrown();
}

napi_valuetype TypeOf(napi_env env, napi_value value) {
  napi_valuetype type = napi_undefined;
  Check(env, napi_typeof(env, value, &type));
  return type;
}

std::string Utf8Of(napi_env env, napi_value text) {
  std::size_t length = 0;
  Check(env, napi_get_value_string_utf8(env, text, nullptr, 0, &length));
  std::string utf8(length, '\0');
  Check(env, napi_get_value_string_utf8(env, text, utf8.data(), length + 1, &length));
  return utf8;
}

}  // namespace folivar::node
