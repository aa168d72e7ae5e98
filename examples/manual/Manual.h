#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

// What a manual says, before it is known where on which page. Texts are UTF-8.

enum class Style { kPlain, kItalic, kBold, kBoldItalic, kCode };

// A stretch of text in one style.
struct Span {
  std::string text;
  Style style = Style::kPlain;
  std::optional<std::size_t> target;  // the heading that it leads to
};

struct Heading {
  int level;           // 1 for a chapter, 2 for a section, 3 for a subsection
  std::string number;  // "3", "3.2", "3.2.1"
  std::string title;
};

enum class BlockKind { kHeading, kParagraph, kItem, kCode };

struct Block {
  BlockKind kind;
  std::size_t heading = 0;              // of a heading: which one
  std::vector<Span> spans = {};         // of a paragraph or an item
  std::vector<std::string> lines = {};  // of code, without tabs
};

struct Manual {
  std::string title;
  std::vector<std::string> titleLines;  // what stands below the title
  std::vector<Heading> headings;
  std::vector<Block> blocks;  // begins with a chapter
};
