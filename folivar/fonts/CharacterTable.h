#pragma once

#include <array>

namespace folivar {

// Measures of one character, in thousandths of the em: advance width and glyph box.
struct CharacterMetrics {
  float width = 0;
  float left = 0;
  float bottom = 0;
  float right = 0;
  float top = 0;
};

// By character code. Characters that a face does not have are all 0.
using CharacterTable = std::array<CharacterMetrics, 256>;

}  // namespace folivar
