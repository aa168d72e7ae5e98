#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "BookStyle.h"
#include "Manual.h"
#include "PagePen.h"

// A line of the contents: a heading, and where on its page.
struct ContentsLine {
  std::size_t heading;
  float baseline;
};

// The lines of the contents, page by page.
std::vector<std::vector<ContentsLine>> PlanContents(const std::vector<Heading>& headings);

// The title above the first page's lines.
void WriteContentsTitle(PagePen& pen, const BookStyle& style);

// "2.1  What you need . . . . . . 4"; returns the room that the line takes.
Box WriteContentsLine(PagePen& pen, const BookStyle& style, const ContentsLine& line,
                      const Heading& heading, const std::string& pageNumber);
