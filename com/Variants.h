#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "com/ComPrefix.h"
#include "folivar/base/Text.h"
#include "folivar/base/Value.h"

namespace folivar::com {

// A VARIANT that is cleared when it goes. Empty at first.
class Variant {
 public:
  Variant() { VariantInit(&held_); }
  // A copy, as by CopyFrom. Raises 13 when there can be none.
  explicit Variant(const VARIANT& source);
  ~Variant() { VariantClear(&held_); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;

  VARIANT* Get() { return &held_; }
  const VARIANT& operator*() const { return held_; }
  const VARIANT* operator->() const { return &held_; }

  // Whether it now is a copy of `source`, or of what that refers to. For an empty one. Raises 7
  // when there is no memory.
  bool CopyFrom(const VARIANT& source);
  // Whether it now is of this type, converted as the system converts.
  bool ChangeTo(VARTYPE type) { return SUCCEEDED(VariantChangeType(&held_, &held_, 0, type)); }

 private:
  VARIANT held_;
};

// UTF-16 both, under two types.
std::wstring WideFrom(const Text& text);
// A null string is the empty one.
TextView ViewOf(BSTR text);
// Raises 7 when there is no memory.
BSTR BstrFrom(const Text& text);

// What arguments without a type mean to the model. An argument that was left out, by itself or in a
// variable, is Missing, and Null is Null; anything else is converted as the system converts: "12",
// Empty and True are numbers too. What cannot be converted is for the model to refuse.

// A position or a key: a text is always a key, "1" too.
Value IndexFrom(const VARIANT& index);
Value NumberFrom(const VARIANT& number);
// Nothing for Missing; raises 94 for Null, 13 for what is no number and 6 beyond a single. `member`
// stands in the error's text.
std::optional<float> SingleFrom(const char* member, const VARIANT& number);
Value FlagFrom(const VARIANT& flag);
// Nothing for Missing; raises 94 for Null and 13 for what is no text.
std::optional<Text> TextFrom(const char* member, const VARIANT& text);

// Null for nothing.
VARIANT VariantFrom(std::optional<bool> flag);
VARIANT VariantFrom(std::optional<std::int32_t> number);

// Raises 7 when there is no memory.
SAFEARRAY* ArrayFrom(const std::vector<Text>& texts);

// A tag of the host's: any VARIANT as it came, objects by reference.
Value TagFrom(const VARIANT& tag);
// The same of an object or Nothing; raises 424 for anything else.
Value ObjectTagFrom(const VARIANT& tag);
// A copy. Raises 13 when there can be none.
void CopyTag(const Value& tag, VARIANT* result);

}  // namespace folivar::com
