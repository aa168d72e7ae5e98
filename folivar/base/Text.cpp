#include "folivar/base/Text.h"

#include <ostream>

#include "folivar/base/Utf8.h"

namespace folivar {

Text::Text(TextView text)
    : units_(text.IsUtf16() || text.IsEmpty() ? std::u16string(text.Utf16())
                                              : Utf16FromUtf8(text.Utf8())) {}

std::string Text::Utf8() const { return Utf8FromUtf16(units_); }

std::ostream& operator<<(std::ostream& stream, const Text& text) { return stream << text.Utf8(); }

}  // namespace folivar
