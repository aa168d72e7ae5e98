#include "folivar/textbox/TextBoxRenderer.h"

#include <cstdint>

#include "folivar/base/AnsiText.h"
#include "folivar/base/ByteTraits.h"
#include "folivar/base/Numbers.h"
#include "folivar/document/Global.h"
#include "folivar/file/PDFText.h"
#include "folivar/fonts/FontMetrics.h"
#include "folivar/textbox/TextLayout.h"

namespace folivar {
namespace {

//   0 0 0 rg
//   /F0 6.5  Tf
//   -1  Ts
std::string BeginningOf(const MeasuredFormat& format) {
  const FontMetrics metrics = format.Metrics();
  PDFText text;
  text.Append(FillColorOp(format.Color()), std::string_view(metrics.Face().m_PDFName), " ",
              Real{metrics.EffectiveSize()}, " Tf\n");
  if (metrics.IsRaisedOrLowered()) text.Append(Real{metrics.Rise()}, " Ts\n");
  return std::string(text.Bytes());
}

}  // namespace

//   % Begin Textbox
//   q
//   0 0 0 RG              AppendFrame
//   ...
//   BT
//   74 709  Td
//   0 0 0 rg              AppendSegment
//   /F0 10  Tf
//   (a first line ) Tj
//   11.56  TL
//   T*
//   24  0 Td
//   0 0 0 rg
//   /F0 10  Tf
//   (and a centred one) Tj
//   -24  0 Td
//   ET
//   q                     AppendDecorations
//   ...
//   0 0 0 RG              AppendBorder
//   ...
//   Q
//   % End Textbox
// The first line ends with a blank.
void TextBoxRenderer::Render(std::string_view ownContent, const AnsiText& text,
                             const RunList& runs) {
  content_.Append("% Begin Textbox \nq\n", ownContent);
  AppendFrame();
  content_.Append("BT\n");
  TextLayout layout(text.Bytes(), runs, geometry_);
  text_ = text.Bytes();
  nextEscape_ = text.Traits().hasEscapes ? 0 : text_.size();
  beginnings_.resize(layout.Formats().size());
  AppendLines(layout);
  content_.Append("ET\n");
  AppendDecorations();
  AppendBorder();
  content_.Append("Q\n% End Textbox\n");
}

//   0 0 0 RG
//   [1 0 ] 0 d
//   1 1 1 rg
//   72  720  m
//   72  720  200  -100  re
//   W
//   s
//   72  720  m
//   72  720  200  -100  re
//   f
void TextBoxRenderer::AppendFrame() {
  const bool isOpaque = frame_.backStyle == bsOpaque;
  if (frame_.HasBorder()) {
    content_.Append(StrokeColorOp(frame_.borderColor), "[", Real{frame_.dashOn},
                    Real{frame_.dashOff}, "] 0 d\n");
  }
  if (isOpaque) content_.Append(FillColorOp(frame_.backColor));
  AppendPath();
  // Deliberate: a border is stroked here too, beneath the background.
  content_.Append("W\n", frame_.HasBorder() ? "s\n" : "n\n");
  if (!isOpaque) return;
  AppendPath();
  content_.Append("f\n");
}

void TextBoxRenderer::AppendPath() {
  const Real left{geometry_.left};
  const Real top{geometry_.top};
  content_.Append(left, " ", top, " m\n", left, " ", top, " ", Real{geometry_.width}, " ",
                  Real{-geometry_.height}, " re\n");
}

void TextBoxRenderer::AppendLines(TextLayout& layout) {
  auto line = layout.NextLine();
  if (!line) return;
  const float x = geometry_.left + geometry_.marginLeft;
  const float y = geometry_.top - line->leading - geometry_.marginTop;
  Point start{static_cast<float>(RoundHalfToEven(x)), static_cast<float>(RoundHalfToEven(y))};
  content_.Append(Real{start.x}, Real{start.y}, " Td\n");
  AppendLine(layout, *line, start);
  while ((line = layout.NextLine())) {
    start.y -= line->leading;
    content_.Append(Real{line->leading}, " TL\nT*\n");
    AppendLine(layout, *line, start);
  }
}

void TextBoxRenderer::AppendLine(const TextLayout& layout, const TextLine& line, Point start) {
  if (line.shift != 0) content_.Append(Real{line.shift}, " 0 Td\n");
  Point place{start.x + static_cast<float>(line.shift), start.y};
  layout.ForEachSegment(line, [&](std::string_view bytes, const MeasuredFormat& format) {
    AppendSegment(bytes, format);
    if (!line.isDecorated) return;
    const float end = place.x + format.Width(bytes);
    Decorate(format.Font(), place, end);
    place.x = end;
  });
  if (line.shift != 0) content_.Append(Real{-line.shift}, " 0 Td\n");
}

//   0 0 0 rg
//   /F0 6.5  Tf
//   -1  Ts          for sub- and superscript
//   (text) Tj
//   0 Ts
void TextBoxRenderer::AppendSegment(std::string_view bytes, const MeasuredFormat& format) {
  std::string& beginning = beginnings_[format.Number()];
  if (beginning.empty()) beginning = BeginningOf(format);
  content_.Append(std::string_view(beginning), "(", Escaped{bytes, IsPlain(bytes)}, ") Tj\n");
  if (format.IsRaisedOrLowered()) content_.Append("0 Ts\n");
}

// Whether a stretch of the text holds nothing to escape. They are asked for in their order, so that
// the text is looked through once.
bool TextBoxRenderer::IsPlain(std::string_view bytes) {
  const auto start = static_cast<std::size_t>(bytes.data() - text_.data());
  if (nextEscape_ < start || nextEscape_ == 0) nextEscape_ = FindEscape(text_, start);
  return nextEscape_ >= start + bytes.size();
}

void TextBoxRenderer::Decorate(const PDFFont& font, Point start, float end) {
  const FontMetrics metrics(font);
  if (font.Underline()) {
    strokes_.push_back(
        {metrics.UnderlineSizePts(), {start.x, start.y + metrics.UnderlinePositionPts()}, end});
  }
  if (font.StrikeOut()) {
    strokes_.push_back(
        {metrics.StrikeoutSizePts(), {start.x, start.y + metrics.StrikeoutPositionPts()}, end});
  }
}

//   q
//   0.5  w
//   74  708  m
//   110.2  708  l
//   S
//   Q
void TextBoxRenderer::AppendDecorations() {
  if (strokes_.empty()) return;
  content_.Append("q\n");
  for (const Stroke& stroke : strokes_) {
    const Real y{stroke.start.y};
    content_.Append(Real{stroke.lineWidth}, " w\n", Real{stroke.start.x}, " ", y, " m\n",
                    Real{stroke.end}, " ", y, " l\nS\n");
  }
  content_.Append("Q\n");
}

//   2  w
//   [1 0 ] 0 d
//   72  720  m
//   72  720  200  -100  re
//   s
void TextBoxRenderer::AppendBorder() {
  if (!frame_.HasBorder()) return;
  if (frame_.borderWidth != 1) content_.Append(Real{frame_.borderWidth}, " w\n");
  content_.Append("[", Real{frame_.dashOn}, Real{frame_.dashOff}, "] 0 d\n");
  AppendPath();
  content_.Append("s\n");
}

}  // namespace folivar
