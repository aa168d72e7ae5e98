#pragma once

#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

#include "folivar/base/Text.h"
#include "folivar/base/Value.h"

namespace facade {

// What a recording holds, as JSON in ASCII. A number with a point is a single.
class Json {
 public:
  Json(const char* text) : Json(folivar::Text(text)) {}
  Json(const std::string& text) : Json(folivar::Text(text)) {}
  Json(folivar::TextView text) : Json(folivar::Text(text)) {}
  Json(const folivar::Text& text);
  Json(float number);
  Json(std::int32_t number);
  Json(bool flag);
  // {} for one that is missing.
  Json(const folivar::Value& value);
  template <class Enumeration>
  requires std::is_enum_v<Enumeration> Json(Enumeration value)
      : Json(static_cast<std::int32_t>(value)) {}
  Json(const std::vector<folivar::Text>& texts);
  Json(const std::vector<Json>& list);

  static Json Null() { return Json(Written{"null"}); }
  // {"object": "o3"}
  static Json Object(const std::string& name);

  const std::string& Ascii() const { return written_.ascii; }

 private:
  struct Written {
    std::string ascii;
  };

  explicit Json(Written written) : written_(std::move(written)) {}

  Written written_;
};

}  // namespace facade
