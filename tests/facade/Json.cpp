#include "Json.h"

#include <array>
#include <charconv>
#include <string_view>

namespace facade {
namespace {

template <class Number>
std::string DigitsOf(Number number) {
  std::array<char, 64> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  return {digits.data(), end.ptr};
}

// \u00e4
std::string Escaped(char16_t unit) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string escape = "\\u";
  for (int shift = 12; shift >= 0; shift -= 4) escape += kDigits[(unit >> shift) & 15];
  return escape;
}

Json JsonOf(const folivar::Value& value) {
  if (const auto* flag = value.As<bool>()) return *flag;
  if (const auto* text = value.As<folivar::Text>()) return *text;
  if (const auto* real = value.As<double>()) return static_cast<float>(*real);
  return folivar::Int32From(value);
}

}  // namespace

Json::Json(const folivar::Text& text) {
  written_.ascii = '"';
  for (const char16_t unit : text.Utf16()) {
    const bool isPlain = unit >= 0x20 && unit < 0x7F && unit != u'"' && unit != u'\\';
    written_.ascii += isPlain ? std::string(1, static_cast<char>(unit)) : Escaped(unit);
  }
  written_.ascii += '"';
}

Json::Json(float number) : written_{DigitsOf(number)} {
  if (written_.ascii.find_first_of(".e") == std::string::npos) written_.ascii += ".0";
}

Json::Json(std::int32_t number) : written_{DigitsOf(number)} {}

Json::Json(bool flag) : written_{flag ? "true" : "false"} {}

Json::Json(const folivar::Value& value)
    : written_{value.IsMissing() ? "{}" : JsonOf(value).Ascii()} {}

Json::Json(const std::vector<folivar::Text>& texts)
    : Json(std::vector<Json>(texts.begin(), texts.end())) {}

Json::Json(const std::vector<Json>& list) {
  for (const Json& item : list) {
    written_.ascii += written_.ascii.empty() ? "[" : ", ";
    written_.ascii += item.Ascii();
  }
  written_.ascii += list.empty() ? "[]" : "]";
}

Json Json::Object(const std::string& name) {
  return Json(Written{"{\"object\": " + Json(name).Ascii() + "}"});
}

}  // namespace facade
