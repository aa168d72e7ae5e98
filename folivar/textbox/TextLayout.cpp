#include "folivar/textbox/TextLayout.h"

#include "folivar/base/Numbers.h"
#include "folivar/document/Global.h"
#include "folivar/fonts/PDFFont.h"

namespace folivar {
namespace {

constexpr std::string_view kWhiteSpace = "\t\n\v\f\r ";

}  // namespace

TextLayout::TextLayout(std::string_view bytes, const RunList& runs, const TextBoxGeometry& geometry)
    : bytes_(bytes), runs_(bytes, runs), geometry_(geometry), lineRun_(runs_.begin()) {}

TextLayout::Cursor TextLayout::CursorAt(std::size_t position) const {
  return position >= lineStart_ ? lineRun_ : runs_.begin();
}

void TextLayout::BeginLine(std::size_t start) {
  lineStart_ = start;
  while (lineRun_->end <= start) ++lineRun_;
}

float TextLayout::MeasureRangeWidth(Cursor& cursor, std::size_t start, std::size_t end) const {
  float width = 0;
  ForEachPiece(cursor, start, end, [&](std::string_view piece, const MeasuredFormat& format) {
    if (piece != "\n") width += format.Width(piece);
  });
  return width;
}

float TextLayout::MeasureRangeWidth(std::size_t start, std::size_t end) const {
  auto cursor = CursorAt(start);
  return MeasureRangeWidth(cursor, start, end);
}

LineMeasures TextLayout::MeasureLine(std::size_t start, std::size_t end) const {
  LineMeasures line;
  ForEachPiece(start, end, [&](std::string_view piece, const MeasuredFormat& format) {
    const FontMetrics font = format.Metrics();
    const TextExtents extents = font.Face().MeasureExtents(piece);
    line.width += font.Scaled(extents.width, font.EffectiveSize());
    line.height =
        MaxOf(line.height, font.Scaled(font.Rise() + extents.height, font.EffectiveSize()));
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

// Finds each word, up to its blank, and measures it in one walk over its pieces: most of the time
// that laying out takes goes by here.
std::size_t TextLayout::FindLineEnd(std::size_t start) {
  const std::size_t paragraphEnd = FindParagraphEnd(start);
  if (!geometry_.wordWrap) return paragraphEnd;
  const double available =
      RoundHalfToEven(geometry_.width - geometry_.marginLeft - geometry_.marginRight);
  float width = 0;
  float wordWidth = 0;
  std::size_t wordStart = start;
  std::size_t position = start;
  for (auto run = CursorAt(start); position < paragraphEnd; ++run) {
    const MeasuredFormat& format = runs_.FormatOf(*run);
    const std::size_t runEnd = std::min(paragraphEnd, run->end);
    while (position < runEnd) {
      const std::size_t pieceStart = position;
      float pieceWidth = 0;
      while (position < runEnd) {
        const char byte = bytes_[position++];
        pieceWidth += format.Width(byte);
        if (byte == ' ') break;
      }
      const char last = bytes_[position - 1];
      if (last != '\n' || position > pieceStart + 1) wordWidth += format.Shown(pieceWidth);
      if (last != ' ' && position < paragraphEnd) break;  // the word goes on in the next run
      width += wordWidth;
      if (width >= available) return wordStart == start ? position : wordStart;
      wordWidth = 0;
      wordStart = position;
    }
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
  ForEachPiece(line.start, line.end, [&](std::string_view, const MeasuredFormat& format) {
    line.leading = MaxOf(line.leading, format.Leading());
    line.isDecorated = line.isDecorated || format.IsDecorated();
  });
  line.shift = RoundHalfToEven(AlignmentShift(line.start, line.end, lineRun_->alignment));
  next_ = line.end;
  return line;
}

AllExtents TextLayout::Measure() {
  AllExtents extents;
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
