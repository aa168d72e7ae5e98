#pragma once

#include <memory>

#include "hosts/node/Environment.h"
#include "hosts/node/HostValues.h"

namespace folivar::node {

// What JavaScript has for an object of the library: a JavaScript object that holds the library's
// for as long as it lives. The same object always has the same wrapper, as long as JavaScript can
// tell, and every wrapper keeps that of its document alive.
class Wrapper {
 public:
  struct LetGo {
    void operator()(folivar_object* held) const { folivar_release(held); }
  };
  using Held = std::unique_ptr<folivar_object, LetGo>;

  // The wrapper of an object.
  static napi_value Of(Environment& environment, Held held);
  // The wrapper of a new document, which these values are for.
  static napi_value OfDocument(const std::shared_ptr<HostValues>& values, Held held);
  // Null for a value that is no wrapper.
  static Wrapper* From(const Environment& environment, napi_value value);

  ~Wrapper();
  Wrapper(const Wrapper&) = delete;
  Wrapper& operator=(const Wrapper&) = delete;

  folivar_object* Object() const { return object_.get(); }
  const folivar_class& Class() const { return *folivar_class_of(object_.get()); }
  // Those of its document.
  HostValues& Values() const { return *values_; }

 private:
  Wrapper(std::shared_ptr<HostValues> values, Held held);

  static napi_value Make(std::shared_ptr<HostValues> values, Held held, napi_value kept);
  static void End(napi_env env, void* wrapper, void* hint);
  // Null once it has been collected.
  napi_value Value() const;

  std::shared_ptr<HostValues> values_;
  Held object_;
  napi_ref value_ = nullptr;  // weak
};

}  // namespace folivar::node
