#include "hosts/node/Values.h"

#include <cstddef>

#include "hosts/node/HostValues.h"
#include "hosts/node/Wrapper.h"

namespace folivar::node {
namespace {

class Cleared {
 public:
  explicit Cleared(folivar_value& value) : value_(value) {}
  ~Cleared() { folivar_clear(&value_); }
  Cleared(const Cleared&) = delete;
  Cleared& operator=(const Cleared&) = delete;

 private:
  folivar_value& value_;
};

napi_value ArrayOf(Environment& environment, const folivar_value& lent) {
  napi_env env = environment.Env();
  napi_value array = nullptr;
  Check(env, napi_create_array_with_length(env, lent.with.length, &array));
  for (std::size_t i = 0; i < lent.with.length; ++i) {
    napi_handle_scope scope = nullptr;
    Check(env, napi_open_handle_scope(env, &scope));
    const napi_value element = ValueOf(environment, lent.as.values[i]);
    Check(env, napi_set_element(env, array, static_cast<std::uint32_t>(i), element));
    Check(env, napi_close_handle_scope(env, scope));
  }
  return array;
}

}  // namespace

napi_value TakeValue(Environment& environment, folivar_value& given) {
  const Cleared cleared(given);
  return ValueOf(environment, given);
}

napi_value ValueOf(Environment& environment, const folivar_value& lent) {
  napi_env env = environment.Env();
  napi_value value = nullptr;
  switch (lent.kind) {
    case FOLIVAR_FLAG:
      Check(env, napi_get_boolean(env, lent.as.integer != 0, &value));
      return value;
    case FOLIVAR_INTEGER:
      Check(env, napi_create_int64(env, lent.as.integer, &value));
      return value;
    case FOLIVAR_NUMBER:
      Check(env, napi_create_double(env, lent.as.number, &value));
      return value;
    case FOLIVAR_TEXT:
      Check(env, napi_create_string_utf8(env, lent.as.text, lent.with.length, &value));
      return value;
    case FOLIVAR_UTF16:
      Check(env, napi_create_string_utf16(env, reinterpret_cast<const char16_t*>(lent.as.utf16),
                                          lent.with.length, &value));
      return value;
    case FOLIVAR_OBJECT:
      folivar_retain(lent.as.object);
      return Wrapper::Of(environment, Wrapper::Held(lent.as.object));
    case FOLIVAR_ARRAY:
      return ArrayOf(environment, lent);
    case FOLIVAR_HOST:
      return static_cast<const HostValues::Kept*>(lent.as.host)->Value();
    default:
      Check(env, napi_get_null(env, &value));
      return value;
  }
}

}  // namespace folivar::node
