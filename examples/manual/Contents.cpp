#include "Contents.h"

#include <algorithm>
#include <array>

#include "common/FittedText.h"

namespace {

constexpr float kTitleRoom = 78;   // from the top of the text to that of the first line
constexpr float kTitleDepth = 40;  // from the top of the text to the title's baseline
constexpr float kNumberWidth = 30;
constexpr float kDotsGap = 4;

struct Level {
  float leading;
  float above;
  float indent;       // of the heading's number
  float numberWidth;  // from there to its title
};

// From chapters down.
constexpr std::array<Level, 3> kLevels = {{{14, 7, 0, 22}, {13.2F, 0, 22, 28}, {12.4F, 0, 50, 34}}};

const Level& LevelOf(const Heading& heading) {
  return kLevels[static_cast<std::size_t>(heading.level) - 1];
}

}  // namespace

std::vector<std::vector<ContentsLine>> PlanContents(const std::vector<Heading>& headings) {
  std::vector<std::vector<ContentsLine>> pages(1);
  float top = kText.Top() - kTitleRoom;
  for (std::size_t index = 0; index < headings.size(); ++index) {
    const Heading& heading = headings[index];
    const Level& level = LevelOf(heading);
    // A chapter does not stand alone at the foot of a page.
    const bool hasSections =
        heading.level == 1 && index + 1 < headings.size() && headings[index + 1].level != 1;
    const float needed = level.leading + (hasSections ? kLevels[1].leading : 0);
    if (!pages.back().empty()) top -= level.above;
    if (top - needed < kText.bottom) {
      pages.emplace_back();
      top = kText.Top();
    }
    top -= level.leading;
    pages.back().push_back({index, top + 0.24F * level.leading});
  }
  return pages;
}

void WriteContentsTitle(PagePen& pen, const BookStyle& style) {
  pen.WriteText(style.headings.front(), "Contents", kText.left, kText.Top() - kTitleDepth);
}

Box WriteContentsLine(PagePen& pen, const BookStyle& style, const ContentsLine& line,
                      const Heading& heading, const std::string& pageNumber) {
  const Level& level = LevelOf(heading);
  const TextStyle& ink = style.contentsLines[static_cast<std::size_t>(heading.level) - 1];
  const float left = kText.left + level.indent;
  const float titleLeft =
      left + std::max(level.numberWidth, ink.WidthOf(heading.number) + kDotsGap);
  const float dotsRight = kRight - std::max(kNumberWidth, ink.WidthOf(pageNumber) + kDotsGap);
  const auto title = folivar::Text(Shortened(heading.title, *ink.font, dotsRight - titleLeft));

  pen.WriteText(ink, heading.number, left, line.baseline);
  pen.WriteText(ink, title.Utf8(), titleLeft, line.baseline);
  // Counted from the right, so that the dots of all lines stand below each other.
  const TextStyle& dots = style.text.front();
  const float room = dotsRight - titleLeft - ink.WidthOf(title) - kDotsGap;
  std::string leader;
  for (float width = dots.WidthOf(" ."); width <= room; width += dots.WidthOf(" .")) leader += " .";
  if (!leader.empty()) pen.WriteEnding(dots, leader, dotsRight, line.baseline);
  pen.WriteEnding(ink, pageNumber, kRight, line.baseline);
  return {left, line.baseline - 0.24F * level.leading, kRight - left, level.leading};
}
