#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "folivar/textbox/MeasuredRuns.h"
#include "folivar/textbox/PDFParaAlignment.h"
#include "folivar/textbox/TextBoxFrame.h"

namespace folivar {

// The measures of one line; points.
struct LineMeasures {
  float width = 0;
  float height = 0;
  float leading = 0;  // the distance to the line above; never negative
  float bottom = 0;   // how far the fonts reach below the baseline; never positive
};

// The measures of all lines together.
struct AllExtents {
  float width = 0;     // of the widest line
  float leadings = 0;  // of all lines
  float bottom = 0;    // of the last line
};

// A line as it is drawn. Its text ends with the "\n" that ends it.
struct TextLine {
  std::size_t start;
  std::size_t end;
  float leading;
  double shift;  // to the right, for its alignment; a whole number
  bool isDecorated;
};

// Breaks a text box's text into lines and measures them. Text is its bytes in the file, one for
// each UTF-16 unit; positions count from 0, ends are exclusive, and lines end with their "\n".
// Walks along text and runs once when lines are taken in order. Text, runs, fonts and geometry stay
// as they are meanwhile.
//
// Every operation raises 6 for a measure beyond a single.
class TextLayout {
 public:
  TextLayout(std::string_view bytes, const RunList& runs, const TextBoxGeometry& geometry);

  // The end of the line that begins at `start`.
  std::size_t FindLineEnd(std::size_t start);

  // The widths of the pieces of a stretch, as the runs cut it; a piece that is just "\n" has none.
  float MeasureRangeWidth(std::size_t start, std::size_t end) const;

  LineMeasures MeasureLine(std::size_t start, std::size_t end) const;

  // How far a line is moved to the right. Deliberate: lines are placed between the box's edges, and
  // not between the margins, though they start at the left margin.
  float AlignmentShift(std::size_t start, std::size_t end, PDFParaAlignment alignment) const;

  // The next line, from the first on; nothing behind the last.
  std::optional<TextLine> NextLine();

  // The formats that ForEachSegment tells of.
  const std::vector<MeasuredFormat>& Formats() const { return runs_.Formats(); }

  // Visits the text of a line as the runs cut it, each piece with its format, without the "\n".
  template <class Visit>
  void ForEachSegment(const TextLine& line, Visit visit) const {
    ForEachPiece(line.start, line.end, [&](std::string_view piece, const MeasuredFormat& format) {
      if (piece.back() == '\n') piece.remove_suffix(1);
      if (!piece.empty()) visit(piece, format);
    });
  }

  // Of all lines.
  AllExtents Measure();

 private:
  using Cursor = MeasuredRuns::Iterator;

  // `cursor` is at the run that holds `start`, or before it, and is left at the last one visited.
  template <class Visit>
  void ForEachPiece(Cursor& cursor, std::size_t start, std::size_t end, Visit visit) const {
    while (start < end) {
      while (cursor->end <= start) ++cursor;
      const std::size_t pieceEnd = std::min(end, cursor->end);
      visit(bytes_.substr(start, pieceEnd - start), runs_.FormatOf(*cursor));
      start = pieceEnd;
    }
  }
  template <class Visit>
  void ForEachPiece(std::size_t start, std::size_t end, Visit visit) const {
    auto cursor = CursorAt(start);
    ForEachPiece(cursor, start, end, visit);
  }
  Cursor CursorAt(std::size_t position) const;
  float MeasureRangeWidth(Cursor& cursor, std::size_t start, std::size_t end) const;
  void BeginLine(std::size_t start);
  std::size_t FindParagraphEnd(std::size_t start);

  std::string_view bytes_;
  const MeasuredRuns runs_;
  const TextBoxGeometry& geometry_;
  std::size_t lineStart_ = 0;      // of the line taken last,
  Cursor lineRun_;                 // and the run that holds it
  std::size_t next_ = 0;           // where the next line starts
  std::size_t paragraphFrom_ = 0;  // from here to
  std::size_t paragraphEnd_ = 0;   // the end of the paragraph there is no "\n" but the last unit
};

}  // namespace folivar
