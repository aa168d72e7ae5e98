#pragma once

#include "hosts/node/NodeApi.h"

namespace folivar::node {

// What JavaScript calls for the members of all classes. The data of each is the Member.

napi_value CallMember(napi_env env, napi_callback_info info);
napi_value GetMember(napi_env env, napi_callback_info info);
napi_value SetMember(napi_env env, napi_callback_info info);
// Gives the number of the subscription.
napi_value SubscribeTo(napi_env env, napi_callback_info info);

// What index.js calls besides. The data is the Environment.

// create(class, where warnings go: a function or null): a new object.
napi_value Create(napi_env env, napi_callback_info info);
// unsubscribe(object, the number of the subscription)
napi_value Unsubscribe(napi_env env, napi_callback_info info);
// connect(descriptions of the classes, hooks)
napi_value Connect(napi_env env, napi_callback_info info);

}  // namespace folivar::node
