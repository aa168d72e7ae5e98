#include "folivar/textbox/TextLayout.h"

#include "folivar/document/Global.h"
#include "folivar/fonts/PDFFont.h"

namespace folivar {
namespace {

constexpr std::string_view kWhiteSpace = "\t\n\v\f\r ";

}  // namespace

TextLayout::TextLayout(std::string_view bytes, const RunList& runs, const TextBoxGeometry& geometry)
    : bytes_(bytes),
      runs_(LaidRunsOf(runs, bytes.size())),
      geometry_(geometry),
      lineRun_(runs_.begin()) {}

TextLayout::Cursor TextLayout::CursorAt(std::size_t position) const {
  return position >= lineStart_ ? lineRun_ : runs_.begin();
}

void TextLayout::BeginLine(std::size_t start) {
  lineStart_ = start;
  while (lineRun_->End() <= start) ++lineRun_;
}

float TextLayout::MeasureRangeWidth(Cursor& cursor, std::size_t start, std::size_t end) const {
  float width = 0;
  ForEachPiece(cursor, start, end, [&](std::string_view piece, const LaidRun& run) {
    if (piece != "\n") width += run.Width(piece);
  });
  return width;
}

float TextLayout::MeasureRangeWidth(std::size_t start, std::size_t end) const {
  auto cursor = CursorAt(start);
  return MeasureRangeWidth(cursor, start, end);
}

LineMeasures TextLayout::MeasureLine(std::size_t start, std::size_t end) const {
  LineMeasures line;
  ForEachPiece(start, end, [&](std::string_view piece, const LaidRun& run) {
    const FontMetrics font = run.Metrics();
    float width = 0;
    float height = 0;
    font.Face().MeasureExtents(piece, width, height);
    line.width += FontMetrics::Scaled(width, font.EffectiveSize());
    line.height =
        MaxOf(line.height, FontMetrics::Scaled(font.Rise() + height, font.EffectiveSize()));
    line.leading = MaxOf(line.leading, font.Leading());
    line.bottom = MinOf(line.bottom, font.Scaled(font.Face().FontBoxBottom()));
  });
  return line;
}

// Behind the next "\n", or the text's end. Remembered, so that a long paragraph is not searched
// again for each of its lines.
std::size_t TextLayout::FindParagraphEnd(std::size_t start) {
  if (start < paragraphFrom_ || start >= paragraphEnd_) {
    const std::size_t found = bytes_.find('\n', start);
    paragraphFrom_ = start;
    paragraphEnd_ = found == std::string_view::npos ? bytes_.size() : found + 1;
  }
  return paragraphEnd_;
}

// Adds the width of the word that begins at `start` and returns its end: behind the next blank, at
// most `end`. The same as finding the end and measuring the range, in one walk: most of the time
// that laying out takes goes by here.
std::size_t TextLayout::TakeWord(Cursor& cursor, std::size_t start, std::size_t end,
                                 float& width) const {
  float wordWidth = 0;
  std::size_t position = start;
  for (char byte = 0; byte != ' ' && position < end;) {
    while (cursor->End() <= position) ++cursor;
    const LaidRun& run = *cursor;
    const std::size_t pieceStart = position;
    const std::size_t pieceEnd = std::min(end, run.End());
    float pieceWidth = 0;
    do {
      byte = bytes_[position++];
      pieceWidth += run.Width(byte);
    } while (byte != ' ' && position < pieceEnd);
    if (byte != '\n' || position > pieceStart + 1) wordWidth += run.Shown(pieceWidth);
  }
  width += wordWidth;
  return position;
}

std::size_t TextLayout::FindLineEnd(std::size_t start) {
  const std::size_t paragraphEnd = FindParagraphEnd(start);
  if (!geometry_.wordWrap) return paragraphEnd;
  const double available =
      RoundHalfToEven(geometry_.width - geometry_.marginLeft - geometry_.marginRight);
  auto cursor = CursorAt(start);
  float width = 0;
  std::size_t position = start;
  while (position < paragraphEnd) {
    const std::size_t wordEnd = TakeWord(cursor, position, paragraphEnd, width);
    if (width >= available) return position == start ? wordEnd : position;
    position = wordEnd;
  }
  return paragraphEnd;
}

float TextLayout::AlignmentShift(std::size_t start, std::size_t end,
                                 PDFParaAlignment alignment) const {
  if (alignment != alignRight && alignment != alignCenter) return 0;
  const std::string_view line = bytes_.substr(start, end - start);
  const std::size_t firstVisible = line.find_first_not_of(kWhiteSpace);
  const bool isBlank = firstVisible == std::string_view::npos;
  const std::size_t visibleStart = isBlank ? end : start + firstVisible;
  const std::size_t visibleEnd = isBlank ? end : start + line.find_last_not_of(kWhiteSpace) + 1;
  auto cursor = CursorAt(start);
  const float lead = MeasureRangeWidth(cursor, start, visibleStart);
  const float width = MeasureRangeWidth(cursor, visibleStart, visibleEnd);
  return alignment == alignRight ? geometry_.width - (lead + width)
                                 : (geometry_.width - width) / 2 - lead;
}

std::optional<TextLine> TextLayout::NextLine() {
  if (next_ >= bytes_.size()) return std::nullopt;
  BeginLine(next_);
  TextLine line{next_, FindLineEnd(next_), 0, 0, false};
  ForEachPiece(line.start, line.end, [&](std::string_view, const LaidRun& run) {
    line.leading = MaxOf(line.leading, run.Leading());
    line.isDecorated = line.isDecorated || run.IsDecorated();
  });
  line.shift = RoundHalfToEven(AlignmentShift(line.start, line.end, lineRun_->Run().Alignment));
  next_ = line.end;
  return line;
}

TextExtents TextLayout::Measure() {
  TextExtents extents;
  for (std::size_t start = 0; start < bytes_.size();) {
    BeginLine(start);
    const std::size_t end = FindLineEnd(start);
    const LineMeasures line = MeasureLine(start, end);
    extents.width = MaxOf(extents.width, line.width);
    extents.leadings = Finite(extents.leadings + line.leading);
    extents.bottom = line.bottom;
    start = end;
  }
  return extents;
}

}  // namespace folivar
