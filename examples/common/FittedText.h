#pragma once

#include <folivar/folivar.h>

#include <cstddef>
#include <string>
#include <vector>

// Text cut and broken to a width, in points, as a font measures it.

// The text if it fits into the width, else as much of its beginning as fits with "..." after it.
std::u16string Shortened(folivar::TextView text, const folivar::PDFFont& font, float width);

// The text broken at its blanks into at most `lineCount` lines, which is 1 or more. The last line
// is shortened if there is more, and so is a word that is wider than a line.
std::vector<std::u16string> Wrapped(folivar::TextView text, const folivar::PDFFont& font,
                                    float width, std::size_t lineCount);
