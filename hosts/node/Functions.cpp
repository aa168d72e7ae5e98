#include "hosts/node/Functions.h"

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>

#include "hosts/node/Arguments.h"
#include "hosts/node/Environment.h"
#include "hosts/node/GivenValues.h"
#include "hosts/node/HostValues.h"
#include "hosts/node/Invocation.h"
#include "hosts/node/Values.h"
#include "hosts/node/Wrapper.h"

namespace folivar::node {
namespace {

// What a function is called with.
template <class Data, std::size_t most>
struct Called {
  Called(napi_env env, napi_callback_info info) {
    void* given = nullptr;
    Check(env, napi_get_cb_info(env, info, &count, arguments.data(), &self, &given));
    data = static_cast<Data*>(given);
  }

  std::size_t count = most;
  // Undefined as far as they are not given.
  std::array<napi_value, most> arguments;
  napi_value self = nullptr;
  Data* data = nullptr;
};

Wrapper& ReceiverOf(const Member& member, napi_value self) {
  Wrapper* wrapper = Wrapper::From(member.environment, self);
  if (wrapper == nullptr || &wrapper->Class() != &member.type) {
    ThrowTypeError(member.environment.Env(), member.Name() + " is called on another object");
  }
  return *wrapper;
}

// What a call adds to a document besides texts.
constexpr std::size_t kBytesOfACall = 64;

std::size_t WeightOf(const folivar_value* arguments, std::size_t count) {
  std::size_t weight = kBytesOfACall;
  for (std::size_t i = 0; i < count; ++i) {
    if (arguments[i].kind == FOLIVAR_UTF16) weight += arguments[i].with.length;
  }
  return weight;
}

folivar_value Invoke(const Member& member, const Wrapper& object, std::int32_t action,
                     folivar_value* arguments, std::size_t count) {
  if (action != FOLIVAR_GET) object.Values().Memory().Add(WeightOf(arguments, count));
  Invocation invocation(member.environment);
  folivar_value result = folivar_missing();
  invocation.Finish(folivar_invoke(object.Object(), member.description.id,
                                   action | FOLIVAR_GIVE_UTF16, arguments, count, &result));
  return result;
}

// { Width: 62.5, Height: 10 }
napi_value FilledOf(const Member& member, const folivar_value* arguments) {
  napi_env env = member.environment.Env();
  napi_value filled = nullptr;
  Check(env, napi_create_object(env, &filled));
  for (std::size_t i = 0; i < member.description.parameter_count; ++i) {
    const folivar_parameter& parameter = member.description.parameters[i];
    if ((parameter.traits & FOLIVAR_FILLED) == 0) continue;
    const napi_value number = ValueOf(member.environment, arguments[i]);
    Check(env, napi_set_named_property(env, filled, parameter.name, number));
  }
  return filled;
}

bool Fills(const folivar_member& member) {
  return member.parameter_count > 0 &&
         (member.parameters[member.parameter_count - 1].traits & FOLIVAR_FILLED) != 0;
}

void RequireFunction(const Member& event, napi_value handler) {
  napi_env env = event.environment.Env();
  if (TypeOf(env, handler) != napi_function) {
    ThrowTypeError(env, event.Name() + " takes a function");
  }
}

// Whether a tag has to give back the very same value, which the library cannot hold itself. An
// object of the library is one of these too: held by the library it might hold its own document.
bool IsJavaScriptsOwn(napi_env env, napi_value value) {
  const napi_valuetype type = TypeOf(env, value);
  return type != napi_null && type != napi_boolean && type != napi_number && type != napi_string;
}

folivar_value TagOf(HostValues& values, napi_value tag) {
  folivar_value kept = folivar_missing();
  kept.kind = FOLIVAR_HOST;
  kept.as.host = values.Keep(tag);
  kept.with.release = HostValues::Kept::Release;
  return kept;
}

}  // namespace

napi_value CallMember(napi_env env, napi_callback_info info) {
  return Guarded(env, [&]() -> napi_value {
    const Called<Member, Arguments::kMost> called(env, info);
    const Member& member = *called.data;
    const Wrapper& object = ReceiverOf(member, called.self);
    Arguments arguments(member, called.arguments.data(), called.count);
    const bool isMethod = member.description.actions == FOLIVAR_CALL;
    folivar_value result = Invoke(member, object, isMethod ? FOLIVAR_CALL : FOLIVAR_GET,
                                  arguments.Values(), arguments.Count());
    if (Fills(member.description)) return FilledOf(member, arguments.Values());
    if (member.description.type == FOLIVAR_TYPE_NONE) return nullptr;
    return TakeValue(member.environment, result);
  });
}

napi_value GetMember(napi_env env, napi_callback_info info) {
  return Guarded(env, [&] {
    const Called<Member, 1> called(env, info);
    const Member& member = *called.data;
    folivar_value result = Invoke(member, ReceiverOf(member, called.self), FOLIVAR_GET, nullptr, 0);
    return TakeValue(member.environment, result);
  });
}

napi_value SetMember(napi_env env, napi_callback_info info) {
  return Guarded(env, [&]() -> napi_value {
    const Called<Member, 1> called(env, info);
    const Member& member = *called.data;
    const Wrapper& object = ReceiverOf(member, called.self);
    napi_value wanted = called.arguments[0];
    GivenValues given(member.environment);
    folivar_value value = folivar_missing();
    if ((member.description.traits & FOLIVAR_TAG) != 0 && IsJavaScriptsOwn(env, wanted)) {
      value = TagOf(object.Values(), wanted);
    } else {
      value = given.Of(wanted);
      if (value.kind == FOLIVAR_MISSING) value = GivenValues::Refused();
    }
    Invoke(member, object, FOLIVAR_SET, &value, 1);
    return nullptr;
  });
}

napi_value SubscribeTo(napi_env env, napi_callback_info info) {
  return Guarded(env, [&] {
    const Called<Member, 1> called(env, info);
    const Member& event = *called.data;
    const Wrapper& object = ReceiverOf(event, called.self);
    RequireFunction(event, called.arguments[0]);
    const folivar_callback handler = Invocation::CallbackTo(object.Values(), called.arguments[0]);
    std::int64_t subscription = 0;
    Invocation invocation(event.environment);
    invocation.Finish(
        folivar_subscribe(object.Object(), event.description.id, &handler, &subscription));
    napi_value number = nullptr;
    Check(env, napi_create_int64(env, subscription, &number));
    return number;
  });
}

napi_value Unsubscribe(napi_env env, napi_callback_info info) {
  return Guarded(env, [&]() -> napi_value {
    const Called<Environment, 2> called(env, info);
    std::int64_t subscription = 0;
    Check(env, napi_get_value_int64(env, called.arguments[1], &subscription));
    const Wrapper* object = Wrapper::From(*called.data, called.arguments[0]);
    Invocation invocation(*called.data);
    invocation.Finish(folivar_unsubscribe(object->Object(), subscription));
    return nullptr;
  });
}

napi_value Create(napi_env env, napi_callback_info info) {
  return Guarded(env, [&] {
    const Called<Environment, 2> called(env, info);
    Environment& environment = *called.data;
    const auto values = std::make_shared<HostValues>(environment.shared_from_this());
    const std::string name = Utf8Of(env, called.arguments[0]);
    folivar_object* made = nullptr;
    Invocation invocation(environment);
    if (TypeOf(env, called.arguments[1]) == napi_null) {
      invocation.Finish(folivar_create(name.c_str(), nullptr, &made));
    } else {
      const folivar_callback warnings = Invocation::CallbackTo(*values, called.arguments[1]);
      invocation.Finish(folivar_create(name.c_str(), &warnings, &made));
    }
    return Wrapper::OfDocument(values, Wrapper::Held(made));
  });
}

napi_value Connect(napi_env env, napi_callback_info info) {
  return Guarded(env, [&]() -> napi_value {
    const Called<Environment, 2> called(env, info);
    called.data->Connect(called.arguments[0], called.arguments[1]);
    return nullptr;
  });
}

}  // namespace folivar::node
