#pragma once

#include <array>
#include <cstddef>
#include <forward_list>
#include <string>

#include "hosts/node/Environment.h"

namespace folivar::node {

// What JavaScript gives, as the library takes it. The texts are kept here.
class GivenValues {
 public:
  explicit GivenValues(Environment& environment) : environment_(environment) {}
  GivenValues(const GivenValues&) = delete;
  GivenValues& operator=(const GivenValues&) = delete;

  // Undefined becomes FOLIVAR_MISSING. What the library has no kind for becomes one that it
  // refuses.
  folivar_value Of(napi_value given);

  // What the library takes nowhere but in a tag, and there without a function that lets go of it.
  static folivar_value Refused();

 private:
  folivar_value TextOf(napi_value given);
  folivar_value FlagOf(napi_value given) const;
  folivar_value BigIntOf(napi_value given) const;
  folivar_value ObjectOf(napi_value given) const;

  Environment& environment_;
  std::size_t used_ = 0;  // of text_
  std::array<char16_t, 512> text_;
  std::forward_list<std::u16string> longTexts_;
};

}  // namespace folivar::node
