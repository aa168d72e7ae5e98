#pragma once

#include <string>
#include <string_view>

namespace folivar {

// The bridge between the two forms in which hosts hand in text.

// Raises 5 for bytes that are not UTF-8 and names the position at which the first character that is
// none begins.
std::u16string Utf16FromUtf8(std::string_view utf8);

// A lone surrogate becomes U+FFFD.
std::string Utf8FromUtf16(std::u16string_view utf16);

}  // namespace folivar
