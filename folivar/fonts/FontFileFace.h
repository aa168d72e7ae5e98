#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "folivar/base/Text.h"
#include "folivar/fonts/SystemFonts.h"

namespace folivar {

// Where a TrueType face lies and what it is called.
struct FontFileFace {
  Text fileName;
  std::uint32_t index = 0;  // in a collection, from 0
  Text family;
  bool isBold = false;
  bool isItalic = false;
  // The classes of table "OS/2": 400 and 5 are normal, 700 is bold.
  std::uint16_t weight = 400;
  std::uint16_t width = 5;

  // In any order.
  friend bool operator<(const FontFileFace& a, const FontFileFace& b);
};

// The faces of a font file that have TrueType outlines, in their order. The process remembers what
// it has read here and in OpenFace, up to 4096 faces each, until the file changes; font programs
// are not kept. Raises the errors of FileSource and TrueTypeFontTables.
std::vector<FontFileFace> FacesInFile(const Text& fileName);

// Whether a face is nearer to the style wanted than another: italic counts first, then how far the
// weight is from normal or bold, then the width from normal, and at last what the face calls
// itself.
struct IsNearer {
  bool isBold = false;
  bool isItalic = false;

  bool operator()(const FontFileFace& a, const FontFileFace& b) const;
};

// Opens the face to be measured. One that is not bold, although bold is wanted, is measured as the
// system would thicken it: each width is 1 more.
std::unique_ptr<SystemFace> OpenFace(const FontFileFace& face, bool isBold);

}  // namespace folivar
