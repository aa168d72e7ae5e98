#pragma once

#include <cstdint>
#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

#include "Automation.h"
#include "folivar/base/Text.h"
#include "folivar/base/Value.h"

namespace facade {

using Microsoft::WRL::ComPtr;

// Raises what a member failed with, as the library does.
void RaiseIfFailed(HRESULT result);

class Bstr {
 public:
  explicit Bstr(const folivar::Text& text);
  ~Bstr() { SysFreeString(held_); }
  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;
  operator BSTR() const { return held_; }

 private:
  BSTR held_;
};

class Variant {
 public:
  explicit Variant(const folivar::Value& value);
  ~Variant() { VariantClear(&held_); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;
  operator VARIANT() const { return held_; }

 private:
  VARIANT held_;
};

// What a member puts its result into, and how the result is taken from there.
template <class Result>
struct Taken {
  using Raw = Result;
  static Result From(Raw result) { return result; }
};

template <>
struct Taken<bool> {
  using Raw = VARIANT_BOOL;
  static bool From(Raw flag) { return flag != VARIANT_FALSE; }
};

template <>
struct Taken<std::int32_t> {
  using Raw = LONG;
  static std::int32_t From(Raw number) { return number; }
};

template <>
struct Taken<folivar::Text> {
  using Raw = BSTR;
  static folivar::Text From(Raw text);
};

template <>
struct Taken<std::vector<folivar::Text>> {
  using Raw = SAFEARRAY*;
  static std::vector<folivar::Text> From(Raw texts);
};

// An object behind one of the interfaces of the automation component. What a host of the C library
// has under this name is in c/Handle.h.
template <class Interface>
class Handle {
 public:
  explicit Handle(ComPtr<Interface> held) : held_(std::move(held)) {}

  // A method without a result, or a property that is set.
  template <class Method, class... Arguments>
  void Call(Method method, const Arguments&... arguments) const {
    RaiseIfFailed((held_.Get()->*method)(Pass(arguments)...));
  }

  template <class Result, class Method, class... Arguments>
  Result Get(Method method, const Arguments&... arguments) const {
    typename Taken<Result>::Raw result{};
    RaiseIfFailed((held_.Get()->*method)(Pass(arguments)..., &result));
    return Taken<Result>::From(result);
  }

  // Another object, if there is one.
  template <class Other, class Method, class... Arguments>
  std::optional<Handle<Other>> Reach(Method method, const Arguments&... arguments) const {
    ComPtr<Other> reached;
    RaiseIfFailed((held_.Get()->*method)(Pass(arguments)..., reached.GetAddressOf()));
    if (!reached) return std::nullopt;
    return Handle<Other>(std::move(reached));
  }

 private:
  template <class Other>
  friend class Handle;

  static Bstr Pass(folivar::TextView text) { return Bstr(folivar::Text(text)); }
  static Variant Pass(const folivar::Value& value) { return Variant(value); }
  static float Pass(float number) { return number; }
  static LONG Pass(std::int32_t number) { return number; }
  static VARIANT_BOOL Pass(bool flag) { return flag ? VARIANT_TRUE : VARIANT_FALSE; }
  template <class Other>
  static Other* Pass(const Handle<Other>* object) {
    return object == nullptr ? nullptr : object->held_.Get();
  }
  template <class Enumeration>
  requires std::is_enum_v<Enumeration>
  static Enumeration Pass(Enumeration value) { return value; }

  ComPtr<Interface> held_;
};

}  // namespace facade
