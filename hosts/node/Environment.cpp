#include "hosts/node/Environment.h"

#include <array>

namespace folivar::node {
namespace {

napi_value TextOf(napi_env env, const char* utf8) {
  napi_value text = nullptr;
  Check(env, napi_create_string_utf8(env, utf8, NAPI_AUTO_LENGTH, &text));
  return text;
}

napi_value ValueOf(napi_env env, napi_ref reference) {
  napi_value value = nullptr;
  Check(env, napi_get_reference_value(env, reference, &value));
  return value;
}

}  // namespace

Environment::Environment(napi_env env) : env_(env) {
  napi_value global = nullptr;
  napi_value object = nullptr;
  napi_value prototype = nullptr;
  Check(env, napi_get_global(env, &global));
  Check(env, napi_get_named_property(env, global, "Object", &object));
  Check(env, napi_get_named_property(env, object, "prototype", &prototype));
  Check(env, napi_create_reference(env, prototype, 1, &objectPrototype_));
}

Environment::~Environment() {
  for (napi_ref reference : {types_, hooks_, objectPrototype_}) {
    if (reference != nullptr) napi_delete_reference(env_, reference);
  }
}

void Environment::Connect(napi_value types, napi_value hooks) {
  Check(env_, napi_create_reference(env_, types, 1, &types_));
  Check(env_, napi_create_reference(env_, hooks, 1, &hooks_));
}

Member& Environment::Add(const folivar_class& type, const folivar_member& description) {
  return members_.emplace_back(Member{*this, type, description});
}

napi_value Environment::Make(const folivar_class& type, napi_value kept) const {
  const auto place = static_cast<std::uint32_t>(&type - folivar_describe()->classes);
  napi_value described = nullptr;
  Check(env_, napi_get_element(env_, ValueOf(env_, types_), place, &described));
  return Call("make", {described, kept});
}

void Environment::ThrowLastError() const {
  const folivar_error& error = *folivar_last_error();
  std::array<napi_value, 3> arguments{};
  Check(env_, napi_create_int32(env_, error.number, arguments.data()));
  arguments[1] = TextOf(env_, error.member);
  arguments[2] = TextOf(env_, error.text);
  napi_value made = nullptr;
  Check(env_, napi_new_instance(env_, Hook("Error"), arguments.size(), arguments.data(), &made));
  Check(env_, napi_throw(env_, made));
  throw Thrown();
}

void Environment::Report(napi_value thrown) const {
  try {
    Call("report", {thrown});
  } catch (const Thrown&) {
    napi_value last = nullptr;
    napi_get_and_clear_last_exception(env_, &last);
  }
}

bool Environment::IsPlainObject(napi_value value) const {
  if (TypeOf(env_, value) != napi_object) return false;
  napi_value prototype = nullptr;
  Check(env_, napi_get_prototype(env_, value, &prototype));
  if (TypeOf(env_, prototype) == napi_null) return true;
  bool isPlain = false;
  Check(env_, napi_strict_equals(env_, prototype, ValueOf(env_, objectPrototype_), &isPlain));
  return isPlain;
}

napi_value Environment::Hook(const char* name) const {
  napi_value hook = nullptr;
  Check(env_, napi_get_named_property(env_, ValueOf(env_, hooks_), name, &hook));
  return hook;
}

napi_value Environment::Call(const char* hook, std::initializer_list<napi_value> arguments) const {
  napi_value receiver = nullptr;
  napi_value result = nullptr;
  Check(env_, napi_get_undefined(env_, &receiver));
  Check(env_, napi_call_function(env_, receiver, Hook(hook), arguments.size(), arguments.begin(),
                                 &result));
  return result;
}

}  // namespace folivar::node
