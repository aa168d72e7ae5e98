#include "LaidBlock.h"

#include <algorithm>
#include <string>

#include "common/FittedText.h"

namespace {

constexpr float kLeading = 13.2F;
constexpr float kItemIndent = 14;
constexpr float kNumberGap = 9;  // between the number of a heading and its title
constexpr std::size_t kLongestIntroduction = 4;
constexpr std::size_t kUndividedCode = 18;
constexpr std::size_t kMostTitleLines = 4;

struct HeadingShape {
  float leading;
  float above;
  float below;
};

// By level.
constexpr std::array<HeadingShape, 3> kHeadings = {{{29, 0, 30}, {17, 20, 5}, {14, 13, 4}}};

Piece PlainPiece(const std::string& text, const TextStyle& style, float left) {
  return {text, &style, {}, style.WidthOf(text), left};
}

// "2.1  What you need", its further lines below the title. The number of a chapter stands above its
// title, in the room before it.
LaidBlock LayOutHeading(const Heading& heading, const BookStyle& style) {
  const auto level = static_cast<std::size_t>(heading.level) - 1;
  const TextStyle& font = style.headings[level];
  const HeadingShape& shape = kHeadings[level];
  LaidBlock laid{BlockKind::kHeading};
  laid.leading = shape.leading;
  laid.above = shape.above;
  laid.below = shape.below;
  laid.staysWithNext = true;

  const bool isChapter = level == 0;
  const float indent = isChapter ? 0 : font.WidthOf(heading.number) + kNumberGap;
  for (const std::u16string& line :
       Wrapped(heading.title, *font.font, kText.width - indent, kMostTitleLines)) {
    laid.lines.push_back({PlainPiece(folivar::Text(line).Utf8(), font, indent)});
  }
  if (!isChapter) {
    laid.lines.front().insert(laid.lines.front().begin(), PlainPiece(heading.number, font, 0));
  }
  laid.leastLines = laid.lines.size();
  return laid;
}

LaidBlock LayOutCode(const Block& block, const BookStyle& style) {
  LaidBlock laid{BlockKind::kCode};
  laid.leading = 10.4F;
  laid.above = 7;
  laid.below = 9;
  laid.padding = 5;
  laid.indent = 3;
  const float width = kText.width - 2 * laid.indent;
  for (const std::string& text : block.lines) {
    for (const std::string& part : Chopped(text, *style.code.font, width)) {
      laid.lines.push_back({PlainPiece(part, style.code, 0)});
    }
  }
  laid.leastLines = laid.lines.size() <= kUndividedCode ? laid.lines.size() : 4;
  return laid;
}

LaidBlock LayOutText(const Block& block, const BookStyle& style) {
  const bool isItem = block.kind == BlockKind::kItem;
  LaidBlock laid{block.kind};
  laid.leading = kLeading;
  laid.above = isItem ? 2.5F : 6.5F;
  laid.below = laid.above;
  laid.indent = isItem ? kItemIndent : 0;
  laid.lines = BrokenIntoLines(block.spans, style, kText.width - laid.indent);
  // Of three lines no two can stand on either page.
  laid.leastLines = laid.lines.size() <= 3 ? laid.lines.size() : 2;
  laid.staysWithNext = !block.spans.empty() && block.spans.back().text.ends_with(':') &&
                       laid.lines.size() <= kLongestIntroduction;
  return laid;
}

}  // namespace

std::vector<LaidBlock> LayOutBlocks(const Manual& manual, const BookStyle& style) {
  std::vector<LaidBlock> laid;
  laid.reserve(manual.blocks.size());
  for (const Block& block : manual.blocks) {
    switch (block.kind) {
      case BlockKind::kHeading:
        laid.push_back(LayOutHeading(manual.headings[block.heading], style));
        laid.back().heading = block.heading;
        break;
      case BlockKind::kCode:
        laid.push_back(LayOutCode(block, style));
        break;
      case BlockKind::kParagraph:
      case BlockKind::kItem:
        laid.push_back(LayOutText(block, style));
        break;
    }
  }
  return laid;
}
