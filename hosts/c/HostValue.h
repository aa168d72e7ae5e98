#pragma once

#include <any>
#include <memory>

#include "folivar/base/Value.h"
#include "hosts/c/folivar.h"

namespace folivar::hosts {

// What a tag keeps for a host: a pointer, whose host hears when it is needed no more, or an object,
// which is held.
class HostValue {
 public:
  // Takes a pointer over, also when it raises, and holds an object.
  static Value TakeOver(const folivar_value& given) {
    std::shared_ptr<HostValue> made;
    try {
      made = std::make_shared<HostValue>();
    } catch (...) {
      if (given.kind == FOLIVAR_HOST) Release(given);
      throw;
    }
    made->given_ = given;
    if (given.kind == FOLIVAR_OBJECT) folivar_retain(given.as.object);
    return Value::Host(std::shared_ptr<const HostValue>(std::move(made)));
  }

  // Null for any other value.
  static const folivar_value* In(const Value& value) {
    const auto* host = value.As<std::any>();
    const auto* held =
        host == nullptr ? nullptr : std::any_cast<std::shared_ptr<const HostValue>>(host);
    return held == nullptr ? nullptr : &(*held)->given_;
  }

  HostValue() = default;
  ~HostValue() { Release(given_); }
  HostValue(const HostValue&) = delete;
  HostValue& operator=(const HostValue&) = delete;

 private:
  static void Release(const folivar_value& given) {
    if (given.kind == FOLIVAR_OBJECT) {
      folivar_release(given.as.object);
    } else if (given.with.release != nullptr) {
      given.with.release(given.as.host);
    }
  }

  folivar_value given_{};
};

}  // namespace folivar::hosts
