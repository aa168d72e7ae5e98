// For the test of leaks: what is allocated, as the sanitizer counts it.

#include <node_api.h>

// The sanitizer's own; not every compiler comes with the header.
extern size_t __sanitizer_get_current_allocated_bytes(void);

static napi_value AllocatedBytes(napi_env env, napi_callback_info info) {
  (void)info;
  napi_value bytes = NULL;
  napi_create_int64(env, (int64_t)__sanitizer_get_current_allocated_bytes(), &bytes);
  return bytes;
}

NAPI_MODULE_INIT() {
  napi_value function = NULL;
  napi_create_function(env, "allocatedBytes", NAPI_AUTO_LENGTH, AllocatedBytes, NULL, &function);
  napi_set_named_property(env, exports, "allocatedBytes", function);
  return exports;
}
