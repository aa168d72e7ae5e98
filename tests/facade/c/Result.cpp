#include "Result.h"

#include <string>

#include "folivar/base/Error.h"

namespace facade {
namespace {

const folivar_value& OfKind(const folivar_value& value, std::int32_t kind) {
  if (value.kind == kind) return value;
  throw folivar::Error::TypeMismatch("a result of kind " + std::to_string(value.kind) +
                                     " where one of kind " + std::to_string(kind) + " is due");
}

folivar::Text TextOf(const folivar_value& value) {
  const folivar_value& text = OfKind(value, FOLIVAR_UTF16);
  return folivar::Text::Of(
      std::u16string(reinterpret_cast<const char16_t*>(text.as.utf16), text.with.length));
}

}  // namespace

template <>
bool Result::As() const {
  return OfKind(held_, FOLIVAR_FLAG).as.integer != 0;
}

template <>
std::int32_t Result::As() const {
  return static_cast<std::int32_t>(OfKind(held_, FOLIVAR_INTEGER).as.integer);
}

template <>
float Result::As() const {
  return static_cast<float>(OfKind(held_, FOLIVAR_NUMBER).as.number);
}

template <>
folivar::Text Result::As() const {
  return TextOf(held_);
}

template <>
std::vector<folivar::Text> Result::As() const {
  const folivar_value& array = OfKind(held_, FOLIVAR_ARRAY);
  std::vector<folivar::Text> texts;
  for (std::size_t i = 0; i < array.with.length; ++i) texts.push_back(TextOf(array.as.values[i]));
  return texts;
}

folivar_object* Result::TakeObject() {
  if (held_.kind == FOLIVAR_NULL) return nullptr;
  folivar_object* object = OfKind(held_, FOLIVAR_OBJECT).as.object;
  held_ = folivar_missing();
  return object;
}

}  // namespace facade
