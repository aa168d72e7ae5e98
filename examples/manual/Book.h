#pragma once

#include <folivar/folivar.h>

#include "Manual.h"
#include "common/Typeface.h"

// Sets a manual as a book, on the pages of a document that has none: title page, contents, chapters
// with running heads, and the outline.
void LayOutBook(folivar::PDFDocument& document, const Manual& manual, const Typeface& typeface);
