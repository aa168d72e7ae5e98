#pragma once

#include <folivar/folivar.h>

#include <vector>

// Adds a page for each family of TrueType fonts to the document: its name with the measures of its
// face, a line in each style, and every printable character in a cell of its own. Fonts are
// embedded where they allow it.
void DrawSpecimen(folivar::PDFDocument& document, const std::vector<folivar::Text>& families);
