#pragma once

#include <string>

#include "Manual.h"

// Reads a manual: a text file in UTF-8 with light markup.
//
//   Title               the paragraphs before the first heading: the title page
//
//   # Chapter           ## is a section, ### a subsection
//
//   A paragraph with *emphasis*, **strong words**, `code` and a link to [Chapter];
//   a backslash before a mark makes it a character.
//
//   - an item of a list,
//     its further lines indented
//
//   ```cpp              a word here is not shown
//   code, kept as it is
//   ```
//
// Throws InputError, naming the line, for marks without an end, headings that skip a level or
// cannot be told apart where a link leads to them, and links that lead nowhere.
Manual ReadManual(const std::string& path);
