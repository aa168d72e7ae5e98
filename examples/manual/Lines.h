#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "BookStyle.h"
#include "Manual.h"

// A stretch of text at its place on a line. The style is the book's.
struct Piece {
  std::string text;
  const TextStyle* style;
  std::optional<std::size_t> target;  // the heading that it leads to
  float width;
  float left = 0;  // from where the line begins
};

using Line = std::vector<Piece>;

// Breaks text at its blanks into lines of at most `width` points. A word that is wider than a line
// is broken where the line is full.
std::vector<Line> BrokenIntoLines(const std::vector<Span>& spans, const BookStyle& style,
                                  float width);

// Breaks a text that is kept as it is where a line is full; an empty one is one line.
std::vector<std::string> Chopped(const std::string& text, const folivar::PDFFont& font,
                                 float width);
