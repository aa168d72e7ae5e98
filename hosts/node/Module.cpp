// What Node finds in folivar.node; the rest of the module is index.js.

#include <array>
#include <memory>

#include "hosts/node/Description.h"
#include "hosts/node/Environment.h"
#include "hosts/node/Functions.h"

namespace folivar::node {
namespace {

using Shared = std::shared_ptr<Environment>;

// The environment ends once the last wrapper has, too.
void LetGo(napi_env /*env*/, void* shared, void* /*hint*/) { delete static_cast<Shared*>(shared); }

void DefineFunctions(Environment& environment, napi_value exports) {
  const auto function = [&](const char* name, napi_callback call) {
    return napi_property_descriptor{name,    nullptr, call,         nullptr,
                                    nullptr, nullptr, napi_default, &environment};
  };
  const std::array functions = {function("connect", Connect), function("create", Create),
                                function("unsubscribe", Unsubscribe)};
  Check(environment.Env(),
        napi_define_properties(environment.Env(), exports, functions.size(), functions.data()));
}

napi_value Load(napi_env env, napi_value exports) {
  const auto environment = std::make_shared<Environment>(env);
  Check(env, napi_set_instance_data(env, std::make_unique<Shared>(environment).release(), LetGo,
                                    nullptr));
  napi_value version = nullptr;
  Check(env, napi_create_string_utf8(env, folivar_describe()->version, NAPI_AUTO_LENGTH, &version));
  Check(env, napi_set_named_property(env, exports, "version", version));
  Check(env, napi_set_named_property(env, exports, "classes", DescribeClasses(*environment)));
  Check(env,
        napi_set_named_property(env, exports, "enumerations", DescribeEnumerations(*environment)));
  DefineFunctions(*environment, exports);
  return exports;
}

}  // namespace
}  // namespace folivar::node

NAPI_MODULE_INIT() {
  return folivar::node::Guarded(env, [&] { return folivar::node::Load(env, exports); });
}
