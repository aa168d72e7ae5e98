#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "BookStyle.h"
#include "Lines.h"
#include "Manual.h"

// A block broken into lines, before it is known on which page they come.
struct LaidBlock {
  BlockKind kind;
  std::optional<std::size_t> heading = {};  // which one it is
  std::vector<Line> lines = {};
  float indent = 0;
  float leading = 0;
  float above = 0;  // room before and behind it; between two blocks the larger one counts
  float below = 0;
  float padding = 0;           // between the edges of what lies beneath the text and the text
  std::size_t leastLines = 1;  // that may stand at the foot of a page without the others
  bool staysWithNext = false;

  float HeightOf(std::size_t lineCount) const {
    return static_cast<float>(lineCount) * leading + 2 * padding;
  }
  // From the top of a line to its baseline.
  float Ascent() const { return 0.76F * leading; }
};

std::vector<LaidBlock> LayOutBlocks(const Manual& manual, const BookStyle& style);
