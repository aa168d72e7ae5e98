#pragma once

#include <string_view>

#include "folivar/fonts/CharacterTable.h"
#include "folivar/fonts/FontBox.h"

namespace folivar {

// What the library takes from an Adobe Font Metrics file; thousandths of the em.
struct AfmMetrics {
  float capHeight = 0;
  float ascender = 0;
  float descender = 0;  // below the baseline: negative
  FontBox box;
  float underlinePosition = 0;
  float underlineThickness = 0;
  CharacterTable characters;
};

// Reads an AFM 4.1 file, lines ending in CR LF. A code outside 0 to 255 raises 9, a number that is
// none 13.
// Deliberate: a header key that the file lacks is read from its first line, "StartFontMetrics 4.1",
// as 4.1. Symbol and ZapfDingbats get their cap height, ascender and descender this way.
AfmMetrics ReadAfm(std::string_view file);

}  // namespace folivar
