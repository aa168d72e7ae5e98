#include "hosts/node/HostValues.h"

#include <utility>

namespace folivar::node {

HostValues::HostValues(std::shared_ptr<Environment> environment)
    : environment_(std::move(environment)), memory_(environment_->Env()) {
  napi_env env = environment_->Env();
  napi_value object = nullptr;
  Check(env, napi_create_object(env, &object));
  Check(env, napi_create_reference(env, object, 0, &object_));
}

HostValues::~HostValues() { napi_delete_reference(environment_->Env(), object_); }

napi_value HostValues::Object() const {
  napi_value object = nullptr;
  Check(environment_->Env(), napi_get_reference_value(environment_->Env(), object_, &object));
  return object;
}

HostValues::Kept::Kept(std::shared_ptr<HostValues> values, napi_value value)
    : values_(std::move(values)), key_(values_->environment_->NextKey()) {
  napi_env env = TheEnvironment().Env();
  Check(env, napi_set_property(env, values_->Object(), Key(), value));
}

// When the environment ends, Node-API refuses all this, and the value goes away with the rest.
HostValues::Kept::~Kept() {
  napi_env env = TheEnvironment().Env();
  napi_handle_scope scope = nullptr;
  if (napi_open_handle_scope(env, &scope) != napi_ok) return;
  try {
    napi_value object = values_->Object();
    if (object != nullptr) napi_delete_property(env, object, Key(), nullptr);
  } catch (const Thrown&) {
  }
  napi_close_handle_scope(env, scope);
}

napi_value HostValues::Kept::Value() const {
  napi_env env = TheEnvironment().Env();
  napi_value object = values_->Object();
  napi_value value = nullptr;
  if (object == nullptr) {
    Check(env, napi_get_undefined(env, &value));
  } else {
    Check(env, napi_get_property(env, object, Key(), &value));
  }
  return value;
}

napi_value HostValues::Kept::Key() const {
  napi_value key = nullptr;
  Check(TheEnvironment().Env(), napi_create_double(TheEnvironment().Env(), key_, &key));
  return key;
}

}  // namespace folivar::node
