#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "Handle.h"
#include "Recording.h"

namespace facade {

// An object of the library that the program reaches through a host, under the name that the
// recording has for it. A member is a line that names the member of the interface.
template <class Itf>
class Object {
 public:
  using Interface = Itf;

  Object(Handle<Interface> held, std::string name)
      : held_(std::move(held)), name_(std::move(name)) {}
  ~Object() { Recording::GiveBack(name_); }
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;

  const Handle<Interface>& Held() const { return held_; }
  const std::string& Name() const { return name_; }

 protected:
  template <class Method, class... Arguments>
  void Call(const char* member, Method method, const Arguments&... arguments) const {
    held_.Call(method, Given(arguments)...);
    Recording::Add({"call", name_, member, ListOf(arguments...)});
  }

  template <class Method, class Argument>
  void Set(const char* property, Method method, const Argument& value) const {
    held_.Call(method, Given(value));
    Recording::Add({"set", name_, property, Recorded(value)});
  }

  // Texts, a number, a flag or a text.
  template <class Result, class Method, class... Arguments>
  Result Get(const char* member, Method method, const Arguments&... arguments) const {
    auto result = held_.template Get<Result>(method, Given(arguments)...);
    Recording::Add({"get", name_, member, ListOf(arguments...), Recorded(result)});
    return result;
  }

  // Another object; null for none.
  template <class Result, class Method, class... Arguments>
  std::shared_ptr<Result> Reach(const char* member, Method method,
                                const Arguments&... arguments) const {
    auto reached = held_.template Reach<typename Result::Interface>(method, Given(arguments)...);
    if (!reached) return nullptr;
    std::string name = Recording::NewName();
    Recording::Add({"reach", name_, member, ListOf(arguments...), name});
    return std::make_shared<Result>(std::move(*reached), std::move(name));
  }

 private:
  // To the handle.
  template <class Argument>
  static const Argument& Given(const Argument& argument) {
    return argument;
  }
  template <class Other>
  static const Handle<typename Other::Interface>* Given(const std::shared_ptr<Other>& object) {
    return object ? &object->Held() : nullptr;
  }

  // In the recording.
  template <class Argument>
  static Json Recorded(const Argument& argument) {
    return argument;
  }
  template <class Other>
  static Json Recorded(const std::shared_ptr<Other>& object) {
    return object ? Json::Object(object->Name()) : Json::Null();
  }
  template <class... Arguments>
  static Json ListOf(const Arguments&... arguments) {
    return std::vector<Json>{Recorded(arguments)...};
  }

  Handle<Interface> held_;
  std::string name_;
};

}  // namespace facade
