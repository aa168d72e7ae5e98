#pragma once

#include <folivar/folivar.h>

#include <memory>
#include <string>
#include <vector>

#include "Markup.h"
#include "Recipients.h"
#include "common/Typeface.h"

// What is printed: a stretch of text in one style that is not broken, with the blank or line end
// behind it, if any. Pages break behind a blank or a line end, but not below a heading.
struct Piece {
  std::string text;  // UTF-8
  bool isBold = false;
  bool isItalic = false;
  bool isHeading = false;
  bool isCentred = false;
  bool isGap = false;  // the empty line between blocks
};

// The text of a letter to one recipient. Throws InputError, naming the line of `path`, for a column
// that there is not.
std::vector<Piece> PiecesFor(const std::vector<Block>& blocks, const std::string& path,
                             const std::vector<std::string>& columns,
                             const std::vector<std::string>& record);

// A document of as many pages as the letter needs.
std::shared_ptr<folivar::PDFDocument> LayOutLetter(const std::vector<Piece>& pieces,
                                                   const Typeface& typeface);
