#include "folivar/base/Text.h"

#include "folivar/base/Utf8.h"

namespace folivar {

Text::Text(TextView text)
    : units_(text.IsUtf16() || text.IsEmpty() ? std::u16string(text.Utf16())
                                              : Utf16FromUtf8(text.Utf8())) {}

std::string Text::Utf8() const { return Utf8FromUtf16(units_); }

}  // namespace folivar
