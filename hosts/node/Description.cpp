#include "hosts/node/Description.h"

#include <cstddef>
#include <span>

#include "hosts/node/Functions.h"

namespace folivar::node {
namespace {

// Ids of members that have no name in JavaScript, or a second one.
constexpr std::int32_t kDefault = 0;
constexpr std::int32_t kMembers = -4;

napi_value NewObject(napi_env env) {
  napi_value object = nullptr;
  Check(env, napi_create_object(env, &object));
  return object;
}

void Set(napi_env env, napi_value object, const char* name, napi_value value) {
  Check(env, napi_set_named_property(env, object, name, value));
}

napi_value TextOf(napi_env env, const char* utf8) {
  napi_value text = nullptr;
  Check(env, napi_create_string_utf8(env, utf8, NAPI_AUTO_LENGTH, &text));
  return text;
}

napi_value FunctionOf(Member& member, napi_callback call) {
  napi_env env = member.environment.Env();
  napi_value function = nullptr;
  Check(env, napi_create_function(env, member.description.name, NAPI_AUTO_LENGTH, call, &member,
                                  &function));
  return function;
}

// JavaScript calls a property with parameters like a method.
bool IsFunction(const folivar_member& member) {
  return (member.actions & FOLIVAR_CALL) != 0 || member.parameter_count > 0;
}

void AddProperty(napi_value prototype, Member& member) {
  napi_property_descriptor property{};
  property.utf8name = member.description.name;
  property.attributes = static_cast<napi_property_attributes>(napi_enumerable | napi_configurable);
  property.data = &member;
  if ((member.description.actions & FOLIVAR_GET) != 0) property.getter = GetMember;
  if ((member.description.actions & FOLIVAR_SET) != 0) property.setter = SetMember;
  Check(member.environment.Env(),
        napi_define_properties(member.environment.Env(), prototype, 1, &property));
}

napi_value DescribeClass(Environment& environment, const folivar_class& type) {
  napi_env env = environment.Env();
  napi_value described = NewObject(env);
  napi_value prototype = NewObject(env);
  napi_value events = NewObject(env);
  for (const folivar_member& description : std::span(type.members, type.member_count)) {
    Member& member = environment.Add(type, description);
    if (description.id == kMembers) {
      Set(env, described, "members", FunctionOf(member, CallMember));
    } else if (IsFunction(description)) {
      Set(env, prototype, description.name, FunctionOf(member, CallMember));
    } else {
      AddProperty(prototype, member);
    }
    if (description.id == kDefault) Set(env, described, "item", TextOf(env, description.name));
  }
  for (const folivar_member& event : std::span(type.events, type.event_count)) {
    Set(env, events, event.name, FunctionOf(environment.Add(type, event), SubscribeTo));
  }
  napi_value isCreatable = nullptr;
  Check(env, napi_get_boolean(env, type.is_creatable, &isCreatable));
  Set(env, described, "name", TextOf(env, type.name));
  Set(env, described, "isCreatable", isCreatable);
  Set(env, described, "prototype", prototype);
  Set(env, described, "events", events);
  return described;
}

}  // namespace

napi_value DescribeClasses(Environment& environment) {
  napi_env env = environment.Env();
  napi_value classes = nullptr;
  Check(env, napi_create_array(env, &classes));
  const folivar_library& library = *folivar_describe();
  for (std::size_t i = 0; i < library.class_count; ++i) {
    Check(env, napi_set_element(env, classes, static_cast<std::uint32_t>(i),
                                DescribeClass(environment, library.classes[i])));
  }
  return classes;
}

napi_value DescribeEnumerations(Environment& environment) {
  napi_env env = environment.Env();
  napi_value enumerations = NewObject(env);
  const folivar_library& library = *folivar_describe();
  for (const auto& enumeration : std::span(library.enumerations, library.enumeration_count)) {
    napi_value constants = NewObject(env);
    for (const auto& constant : std::span(enumeration.constants, enumeration.constant_count)) {
      napi_value value = nullptr;
      Check(env, napi_create_int32(env, constant.value, &value));
      Set(env, constants, constant.name, value);
    }
    Set(env, enumerations, enumeration.name, constants);
  }
  return enumerations;
}

}  // namespace folivar::node
