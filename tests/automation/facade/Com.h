#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

#include "Automation.h"
#include "Script.h"
#include "folivar/base/Text.h"
#include "folivar/base/Value.h"

// What a call on the automation interface is made of.
namespace com {

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

// The text of a BSTR, which it frees.
folivar::Text TextFrom(BSTR text);

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

// An object that is behind one of the interfaces, under the name that the recorded script has for
// it. A member is a line that names the member of the interface.
template <class Itf>
class Object {
 public:
  using Interface = Itf;

  Object(ComPtr<Interface> held, std::string name)
      : held_(std::move(held)), name_(std::move(name)) {}
  ~Object() { Script::GiveBack(name_); }
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;

  Interface* Held() const { return held_.Get(); }
  const std::string& Name() const { return name_; }

 protected:
  template <class Method, class... Arguments>
  void Call(const char* member, Method method, const Arguments&... arguments) const {
    RaiseIfFailed((held_.Get()->*method)(Pass(arguments)...));
    Script::Line(name_ + "." + member + " " + List(arguments...));
  }

  template <class Method, class Argument>
  void Let(const char* property, Method method, const Argument& value) const {
    RaiseIfFailed((held_.Get()->*method)(Pass(value)));
    Script::Line(name_ + "." + property + " = " + Literal(value));
  }

  template <class Method, class Other>
  void Set(const char* property, Method method, const std::shared_ptr<Other>& value) const {
    RaiseIfFailed((held_.Get()->*method)(Pass(value)));
    Script::Line("Set " + name_ + "." + property + " = " + Literal(value));
  }

  // A number, a flag or a text.
  template <class Result, class Method, class... Arguments>
  Result Get(const char* member, Method method, const Arguments&... arguments) const {
    if constexpr (std::is_same_v<Result, folivar::Text>) {
      BSTR text = nullptr;
      RaiseIfFailed((held_.Get()->*method)(Pass(arguments)..., &text));
      return Expected(member, TextFrom(text), arguments...);
    } else if constexpr (std::is_same_v<Result, bool>) {
      VARIANT_BOOL flag = VARIANT_FALSE;
      RaiseIfFailed((held_.Get()->*method)(Pass(arguments)..., &flag));
      return Expected(member, flag != VARIANT_FALSE, arguments...);
    } else if constexpr (std::is_same_v<Result, std::int32_t>) {
      LONG number = 0;
      RaiseIfFailed((held_.Get()->*method)(Pass(arguments)..., &number));
      return Expected(member, static_cast<std::int32_t>(number), arguments...);
    } else {
      Result result{};
      RaiseIfFailed((held_.Get()->*method)(Pass(arguments)..., &result));
      return Expected(member, result, arguments...);
    }
  }

  // Another object; null for Nothing.
  template <class Result, class Method, class... Arguments>
  std::shared_ptr<Result> Reach(const char* member, Method method,
                                const Arguments&... arguments) const {
    ComPtr<typename Result::Interface> reached;
    RaiseIfFailed((held_.Get()->*method)(Pass(arguments)..., reached.GetAddressOf()));
    if (!reached) return nullptr;
    std::string name = Script::NewName();
    Script::Line("Set " + name + " = " + Expression(member, arguments...));
    return std::make_shared<Result>(std::move(reached), std::move(name));
  }

 private:
  static Bstr Pass(folivar::TextView text) { return Bstr(folivar::Text(text)); }
  static Variant Pass(const folivar::Value& value) { return Variant(value); }
  static float Pass(float number) { return number; }
  static LONG Pass(std::int32_t number) { return number; }
  static VARIANT_BOOL Pass(bool flag) { return flag ? VARIANT_TRUE : VARIANT_FALSE; }
  template <class Other>
  static typename Other::Interface* Pass(const std::shared_ptr<Other>& object) {
    return object ? object->Held() : nullptr;
  }
  template <class Enumeration>
  requires std::is_enum_v<Enumeration>
  static Enumeration Pass(Enumeration value) { return value; }

  static std::string Literal(folivar::TextView text) {
    return Script::Literal(folivar::Text(text));
  }
  static std::string Literal(const folivar::Text& text) { return Script::Literal(text); }
  static std::string Literal(const folivar::Value& value) { return Script::Literal(value); }
  static std::string Literal(float number) { return Script::Literal(number); }
  static std::string Literal(std::int32_t number) { return Script::Literal(number); }
  static std::string Literal(bool flag) { return Script::Literal(flag); }
  template <class Other>
  static std::string Literal(const std::shared_ptr<Other>& object) {
    return object ? object->Name() : "Nothing";
  }
  template <class Enumeration>
  requires std::is_enum_v<Enumeration>
  static std::string Literal(Enumeration value) {
    return Script::Literal(static_cast<std::int32_t>(value));
  }

  // Arguments that are missing at the end are left out.
  template <class... Arguments>
  static std::string List(const Arguments&... arguments) {
    std::string list;
    ((list += ", " + Literal(arguments)), ...);
    while (list.ends_with(", ")) list.resize(list.size() - 2);
    return list.empty() ? list : list.substr(2);
  }

  template <class... Arguments>
  std::string Expression(const char* member, const Arguments&... arguments) const {
    const std::string list = List(arguments...);
    return name_ + "." + member + (list.empty() ? "" : "(" + list + ")");
  }

  template <class Result, class... Arguments>
  Result Expected(const char* member, Result result, const Arguments&... arguments) const {
    Script::Expect(Expression(member, arguments...), Literal(result));
    return result;
  }

  ComPtr<Interface> held_;
  std::string name_;
};

}  // namespace com
