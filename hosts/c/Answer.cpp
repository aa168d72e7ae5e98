#include "hosts/c/Answer.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>

#include "hosts/c/HostValue.h"

namespace folivar::hosts {
namespace {

// A copy that ends in a 0, for folivar_clear.
template <class Unit, class Units>
const Unit* CopyOf(const Units& units) {
  auto copy = std::make_unique<Unit[]>(units.size() + 1);
  std::copy(units.begin(), units.end(), copy.get());
  return copy.release();
}

}  // namespace

Answer::Array::~Array() {
  for (folivar_value& value : values_) folivar_clear(&value);
}

folivar_value Answer::Array::Keep() {
  folivar_value array = folivar_missing();
  array.kind = FOLIVAR_ARRAY;
  array.with.length = values_.size();
  auto copy = std::make_unique<folivar_value[]>(values_.size());
  std::copy(values_.begin(), values_.end(), copy.get());
  array.as.values = copy.release();
  values_.clear();
  return array;
}

folivar_value Answer::ValueOf(const Text& text) const {
  folivar_value value = folivar_missing();
  if (wantsUtf16_) {
    value.kind = FOLIVAR_UTF16;
    value.as.utf16 = CopyOf<std::uint16_t>(text.Utf16());
    value.with.length = text.Utf16().size();
  } else {
    const std::string utf8 = text.Utf8();
    value.kind = FOLIVAR_TEXT;
    value.as.text = CopyOf<char>(utf8);
    value.with.length = utf8.size();
  }
  return value;
}

void Answer::Give(const std::shared_ptr<Canvas>& canvas) {
  if (auto page = std::dynamic_pointer_cast<PDFPage>(canvas)) return Give(page);
  Give(std::dynamic_pointer_cast<PDFTemplate>(canvas));
}

void Answer::Give(const Value& value) {
  if (const folivar_value* kept = HostValue::In(value)) {
    if (result_ == nullptr) return;
    *result_ = *kept;
    result_->with = {};
    if (kept->kind == FOLIVAR_OBJECT) folivar_retain(kept->as.object);
  } else if (const auto* flag = value.As<bool>()) {
    Give(*flag);
  } else if (const auto* integer = value.As<std::int64_t>()) {
    Set(folivar_integer(*integer));
  } else if (const auto* number = value.As<double>()) {
    Set(folivar_number(*number));
  } else if (const auto* text = value.As<Text>()) {
    Give(*text);
  } else if (value.IsNull()) {
    Set(folivar_null());
  }
}

}  // namespace folivar::hosts
