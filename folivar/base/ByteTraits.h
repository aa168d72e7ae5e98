#pragma once

#include <cstddef>
#include <string_view>

namespace folivar {

// What a text holds that needs care. Nearly no text holds any of it, so that one look decides
// how it is drawn.
struct ByteTraits {
  bool hasHighBytes = false;  // 0x80 and above: not ASCII
  bool hasControls = false;   // below the blank; line ends are among them
  bool hasEscapes = false;    // \ ( ) which a literal string escapes
};

ByteTraits TraitsOf(std::string_view bytes);

constexpr bool NeedsEscape(char byte) { return byte == '\\' || byte == '(' || byte == ')'; }

// The first place from `from` on that a literal string escapes; the size of the text without one.
std::size_t FindEscape(std::string_view bytes, std::size_t from);

}  // namespace folivar
