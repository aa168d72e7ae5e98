#pragma once

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

}  // namespace folivar
