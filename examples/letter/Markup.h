#pragma once

#include <string>
#include <vector>

// A stretch of text in one style, or the name of a column whose text stands there.
struct Span {
  std::string text;  // UTF-8
  bool isBold = false;
  bool isItalic = false;
  bool isColumn = false;
};

// A paragraph or a heading.
struct Block {
  int line;  // where it starts in the file, from 1
  bool isHeading = false;
  bool isCentred = false;
  std::vector<Span> spans;
};

// Reads a text file in UTF-8 with light markup:
//
//   # A heading
//
//   > A centred line
//   > and the next one
//
//   A paragraph, over any number of lines, with **bold**, *italic* and ***both***, and the text of
//   a column: {name}. A backslash takes the meaning from the character behind it.
//
// Empty lines part blocks. Throws InputError, naming the line, for a file that cannot be read and
// for a style or a column that is not closed.
std::vector<Block> ReadMarkup(const std::string& path);
