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
};

// The faces of a font file that have TrueType outlines, in their order. The process remembers what
// it has read here and in OpenFace, until the file changes; font programs are not kept. Raises the
// errors of FileSource and TrueTypeFontTables.
std::vector<FontFileFace> FacesInFile(const Text& fileName);

// The face of the style nearest to the one wanted, the first of several: italic counts before bold.
// There is at least one.
const FontFileFace& NearestStyle(const std::vector<FontFileFace>& faces, bool isBold,
                                 bool isItalic);

// Opens the face to be measured. One that is not bold, although bold is wanted, is measured as the
// system would thicken it: each width is 1 more.
std::unique_ptr<SystemFace> OpenFace(const FontFileFace& face, bool isBold);

}  // namespace folivar
