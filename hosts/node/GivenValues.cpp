#include "hosts/node/GivenValues.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "hosts/node/Wrapper.h"

namespace folivar::node {
namespace {

folivar_value Utf16(const char16_t* units, std::size_t length) {
  folivar_value text = folivar_missing();
  text.kind = FOLIVAR_UTF16;
  text.as.utf16 = reinterpret_cast<const std::uint16_t*>(units);
  text.with.length = length;
  return text;
}

}  // namespace

folivar_value GivenValues::Of(napi_value given) {
  // Most are numbers.
  double number = 0;
  if (napi_get_value_double(environment_.Env(), given, &number) == napi_ok) {
    return folivar_number(number);
  }
  switch (TypeOf(environment_.Env(), given)) {
    case napi_undefined:
      return folivar_missing();
    case napi_null:
      return folivar_null();
    case napi_boolean:
      return FlagOf(given);
    case napi_bigint:
      return BigIntOf(given);
    case napi_string:
      return TextOf(given);
    case napi_object:
    case napi_function:
      return ObjectOf(given);
    default:
      return Refused();
  }
}

folivar_value GivenValues::Refused() {
  folivar_value refused = folivar_missing();
  refused.kind = FOLIVAR_HOST;
  return refused;
}

folivar_value GivenValues::TextOf(napi_value given) {
  napi_env env = environment_.Env();
  char16_t* const room = text_.data() + used_;
  const std::size_t size = text_.size() - used_;
  std::size_t length = 0;
  Check(env, napi_get_value_string_utf16(env, given, room, size, &length));
  if (length + 1 < size) {
    used_ += length;
    return Utf16(room, length);
  }
  // It has filled the room, and may be longer.
  Check(env, napi_get_value_string_utf16(env, given, nullptr, 0, &length));
  std::u16string& text = longTexts_.emplace_front(length, u'\0');
  Check(env, napi_get_value_string_utf16(env, given, text.data(), length + 1, &length));
  return Utf16(text.data(), length);
}

folivar_value GivenValues::FlagOf(napi_value given) const {
  bool flag = false;
  Check(environment_.Env(), napi_get_value_bool(environment_.Env(), given, &flag));
  return folivar_flag(flag);
}

folivar_value GivenValues::BigIntOf(napi_value given) const {
  napi_env env = environment_.Env();
  std::int64_t integer = 0;
  bool isWhole = false;
  Check(env, napi_get_value_bigint_int64(env, given, &integer, &isWhole));
  if (isWhole) return folivar_integer(integer);

  // A double has room for as many; with more it is infinite.
  std::array<std::uint64_t, 16> words{};
  std::size_t count = words.size();
  int isNegative = 0;
  Check(env, napi_get_value_bigint_words(env, given, &isNegative, &count, words.data()));
  double number = count > words.size() ? HUGE_VAL : 0;
  for (std::size_t i = std::min(count, words.size()); i > 0; --i) {
    number = std::ldexp(number, 64) + static_cast<double>(words.at(i - 1));
  }
  return folivar_number(isNegative != 0 ? -number : number);
}

folivar_value GivenValues::ObjectOf(napi_value given) const {
  const Wrapper* wrapper = Wrapper::From(environment_, given);
  return wrapper == nullptr ? Refused() : folivar_of(wrapper->Object());
}

}  // namespace folivar::node
