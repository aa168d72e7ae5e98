#include "Argument.h"

namespace facade {
namespace {

folivar_value BorrowedText(const std::u16string& text) {
  folivar_value value = folivar_missing();
  value.kind = FOLIVAR_UTF16;
  value.as.utf16 = reinterpret_cast<const std::uint16_t*>(text.data());
  value.with.length = text.size();
  return value;
}

}  // namespace

folivar_value Argument::Borrowed() const {
  if (isObject_) return folivar_of(object_);
  if (const auto* flag = value_.As<bool>()) return folivar_flag(*flag);
  if (const auto* text = value_.As<folivar::Text>()) return BorrowedText(text->Utf16());
  if (const auto* real = value_.As<double>()) return folivar_number(*real);
  if (const auto* integer = value_.As<std::int64_t>()) return folivar_integer(*integer);
  return folivar_missing();
}

}  // namespace facade
