#include "folivar/drawing/Drawing.h"

#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

#include "folivar/base/AnsiText.h"
#include "folivar/base/Error.h"
#include "folivar/base/Internal.h"
#include "folivar/base/Numbers.h"
#include "folivar/base/Value.h"
#include "folivar/document/Global.h"
#include "folivar/drawing/Surface.h"
#include "folivar/drawing/TextLines.h"
#include "folivar/file/PDFText.h"
#include "folivar/file/XObject.h"
#include "folivar/fonts/FontMetrics.h"
#include "folivar/images/PDFImage.h"

namespace folivar {
namespace {

// Takes back what an operation has appended, the pen's move and the growth of the box, unless the
// operation completes.
class Operation {
 public:
  Operation(Surface& surface, ClipBox* growing)
      : surface_(surface),
        growing_(growing),
        piece_(surface.Content()),
        curPos_(surface.CurPos()),
        clipBox_(growing != nullptr ? *growing : ClipBox{}) {}
  ~Operation() {
    if (isComplete_) return;
    surface_.SetCurPos(curPos_);
    if (growing_ != nullptr) *growing_ = clipBox_;
  }
  Operation(const Operation&) = delete;
  Operation& operator=(const Operation&) = delete;

  void Complete() {
    piece_.Keep();
    isComplete_ = true;
  }

 private:
  Surface& surface_;
  ClipBox* growing_;
  PDFTextPiece piece_;
  Point curPos_;
  ClipBox clipBox_;
  bool isComplete_ = false;
};

// Everything in a text object before its first line:
//
//   BT
//   /F0 6.5  Tf
//   72  700  Td
//   -1  Ts          for sub- and superscript
//   11.56  TL       for more than one line
void BeginText(PDFText& content, const FontMetrics& font, float x, float y,
               const TextLines& lines) {
  content.Append("BT\n", std::string_view(font.Face().m_PDFName), " ", Real{font.EffectiveSize()},
                 " Tf\n", Real{x}, " ", Real{y}, " Td\n");
  if (font.IsRaisedOrLowered()) content.Append(Real{font.Rise()}, " Ts\n");
  if (lines.Count() > 1) content.Append(Real{font.Leading()}, " TL\n");
}

void EndText(PDFText& content, const FontMetrics& font) {
  content.Append(font.IsRaisedOrLowered() ? "0 Ts\nET\n" : "ET\n");
}

std::string EscapedBytes(std::string_view line) {
  PDFText text;
  text.Append(Escaped{line});
  return std::string(text.Bytes());
}

// Deliberate: underlines are as thick as strikeouts; a line is measured with the backslashes that
// escaping adds and in the font's own size, also where it is shown smaller; and the rise of sub-
// and superscript does not move the strokes.
void Decorate(Drawing& drawing, PDFText& content, const PDFFont& font, const TextLines& lines,
              float x, float y) {
  if (!font.StrikeOut() && !font.Underline()) return;
  const FontMetrics metrics(font);
  content.Append("q\n", Real{metrics.StrikeoutSizePts()}, " w\n");
  float baseline = y;
  for (const std::string_view line : lines) {
    const float end = x + metrics.Scaled(metrics.Face().MeasureWidth(EscapedBytes(line)));
    if (font.StrikeOut()) {
      const float height = baseline + metrics.StrikeoutPositionPts();
      drawing.DrawLine(x, height, end, height);
    }
    if (font.Underline()) {
      const float height = baseline + metrics.UnderlinePositionPts();
      drawing.DrawLine(x, height, end, height);
    }
    baseline -= metrics.Leading();
  }
  content.Append("Q\n");
}

// The box of DrawTextAligned with its edges in order.
ClipBox BoxOf(float left, float bottom, float width, float height) {
  ClipBox box{left, bottom, Finite(left + width), Finite(bottom + height)};
  if (width < 0) std::swap(box.left, box.right);
  if (height < 0) std::swap(box.bottom, box.top);
  return box;
}

// Deliberate: the font's own size counts, also for sub- and superscript.
float FirstBaseline(const ClipBox& box, const FontMetrics& font, const TextLines& lines,
                    PDFVertTextAlignment alignment) {
  const auto linesBelow = static_cast<float>(lines.Count() - 1);
  const auto firstHeight = [&] { return font.Scaled(font.Face().MeasureHeight(lines.First())); };
  switch (alignment) {
    case vtaTop:
      return box.top - firstHeight();
    case vtaBottom:
      return box.bottom + font.Leading() * linesBelow - font.Descender();
    case vtaCenter:
      return (font.Leading() * linesBelow + firstHeight()) / 2 + (box.top + box.bottom) / 2 -
             font.Ascender();
    default:
      return box.bottom;
  }
}

// Deliberate: the size that sub- or superscript is shown in is reduced once more for measuring its
// lines; existing files are aligned so.
float Indent(const ClipBox& box, const FontMetrics& font, std::string_view line,
             PDFHorzTextAlignment alignment) {
  if (alignment != htaRight && alignment != htaCenter) return 0;
  const float size = font.EffectiveSize(font.EffectiveSize());
  const float width = font.Scaled(font.Face().MeasureWidth(line), size);
  return alignment == htaRight ? box.right - width - box.left : (box.right - box.left - width) / 2;
}

std::string_view PaintOp(Paint paint) {
  switch (paint) {
    case Paint::kStroke:
      return "s\n";
    case Paint::kFill:
      return "f n\n";
    case Paint::kStrokeAndFill:
      return "b\n";
    case Paint::kNone:
      break;
  }
  return "n\n";
}

// Of an image that is drawn: what is given, or a point for each pixel.
double MeasureOf(const Value& given, double pixels) {
  const double measure = given.IsMissing() ? pixels : DoubleFrom(given);
  if (!std::isfinite(measure)) {
    throw Error::Overflow("nothing can be drawn " + DigitsOf(measure) + " points large");
  }
  return measure;
}

}  // namespace

// A content stream never names a face that its page does not list: the font's face may have changed
// since it became current.
void Drawing::ListFace(const PDFFont& font) { surface_.ResourceDictionary().AddFontResource(font); }

//   BT
//   /F0 10  Tf
//   72  700  Td
//   (first line) Tj
//   T*
//   (second line) Tj
//   ET
void Drawing::DrawText(TextView text, float x, float y) {
  const PDFFont& font = *surface_.Font();
  const AnsiText ansi(text);
  const TextLines lines(ansi.Bytes(), ansi.Traits().hasControls);
  const bool isPlain = !ansi.Traits().hasEscapes;
  const FontMetrics metrics(font);
  PDFText& content = surface_.Content();

  Operation operation(surface_, growing_);
  BeginText(content, metrics, x, y, lines);
  std::string_view separator;
  for (const std::string_view line : lines) {
    content.Append(separator, "(", Escaped{line, isPlain}, ") Tj\n");
    separator = "T*\n";
  }
  EndText(content, metrics);
  if (growing_ != nullptr) ExtendByText(metrics, lines, isPlain, x, y);
  Decorate(*this, content, font, lines, x, y);
  ListFace(font);
  operation.Complete();
}

//   BT
//   /F0 10  Tf
//   72  700  Td
//   51.66  0 Td
//   (right) Tj
//   -51.66  0 Td
//   ET
void Drawing::DrawTextAligned(TextView text, float left, float bottom, float width, float height,
                              PDFHorzTextAlignment horzAlignment,
                              PDFVertTextAlignment vertAlignment) {
  const AnsiText ansi(text);
  if (ansi.Bytes().empty()) return;
  const PDFFont& font = *surface_.Font();
  const TextLines lines(ansi.Bytes(), ansi.Traits().hasControls);
  const bool isPlain = !ansi.Traits().hasEscapes;
  const FontMetrics metrics(font);
  const ClipBox box = BoxOf(left, bottom, width, height);
  const float baseline = FirstBaseline(box, metrics, lines, vertAlignment);
  PDFText& content = surface_.Content();

  Operation operation(surface_, growing_);
  BeginText(content, metrics, box.left, baseline, lines);
  std::string_view separator;
  for (const std::string_view line : lines) {
    const float indent = Indent(box, metrics, line, horzAlignment);
    content.Append(separator);
    if (indent == 0) {
      content.Append("(", Escaped{line, isPlain}, ") Tj\n");
    } else {
      content.Append(Real{indent}, " 0 Td\n(", Escaped{line, isPlain}, ") Tj\n", Real{-indent},
                     " 0 Td\n");
    }
    separator = "T*\n";
  }
  EndText(content, metrics);
  Extend(box.left, box.bottom);
  Extend(box.right, box.top);
  ListFace(font);
  operation.Complete();
}

// Deliberate: a line is measured with the backslashes that escaping adds; existing files have boxes
// of this size.
void Drawing::ExtendByText(const FontMetrics& font, const TextLines& lines, bool isPlain, float x,
                           float y) {
  const float size = font.EffectiveSize();
  float widest = -std::numeric_limits<float>::infinity();
  for (const std::string_view line : lines) {
    const float width =
        isPlain ? font.Face().MeasureWidth(line) : font.Face().MeasureWidth(EscapedBytes(line));
    widest = MaxOf(widest, font.Scaled(width, size));
  }
  Extend(x, y + font.Scaled(font.Face().FontBoxTop()));
  Extend(x + widest, y - font.Leading() * static_cast<float>(lines.Count()));
}

//   10  20  m
//   30  40  l
//   S
void Drawing::DrawLine(float x1, float y1, float x2, float y2) {
  surface_.AppendContent(Real{x1}, " ", Real{y1}, " m\n", Real{x2}, " ", Real{y2}, " l\nS\n");
  surface_.SetCurPos({x2, y2});
  Extend(x1, y1);
  Extend(x2, y2);
}

void Drawing::DrawLineTo(float x, float y) {
  const Point from = surface_.CurPos();
  DrawLine(from.x, from.y, x, y);
}

//   0  0  m
//   0  0  100  50  re
//   s
// Deliberate: the "m" before "re" and the "n" after "f" change nothing; existing files have them.
void Drawing::DrawRect(float left, float bottom, float width, float height, Paint paint) {
  const float right = Finite(left + width);
  const float top = Finite(bottom + height);
  surface_.AppendContent(Real{left}, " ", Real{bottom}, " m\n", Real{left}, " ", Real{bottom}, " ",
                         Real{width}, " ", Real{height}, " re\n", PaintOp(paint));
  surface_.SetCurPos({right, top});
  Extend(left, bottom);
  Extend(right, top);
}

//   q
//   1 0 0 1 10 20  cm
//   /T1 Do
//   Q
void Drawing::DrawTemplate(const std::shared_ptr<const XObject>& placed, const Value& x,
                           const Value& y) {
  surface_.CheckIsOfDocument(placed.get(), "PDFTemplate");
  const std::string_view name = placed->ResourceName(Internal());
  Operation operation(surface_, growing_);
  if (x.IsMissing() || y.IsMissing()) {
    surface_.AppendContent(name, " Do\n");
  } else {
    surface_.AppendContent("q\n1 0 0 1 ", Real{DoubleFrom(x)}, Real{DoubleFrom(y)}, " cm\n", name,
                           " Do\nQ\n");
  }
  surface_.ResourceDictionary().AddTemplateResource(placed);
  operation.Complete();
}

//   q
//   200 0 0 100 72 600  cm
//   /I1 Do
//   Q
void Drawing::DrawImage(const std::shared_ptr<PDFImage>& image, float x, float y,
                        const Value& width, const Value& height, AspectRatio aspectRatio) {
  surface_.CheckIsOfDocument(image.get(), "PDFImage");
  const double pixelWidth = image->Width();
  const double pixelHeight = image->Height();
  double drawnWidth = MeasureOf(width, pixelWidth);
  double drawnHeight = MeasureOf(height, pixelHeight);
  if (aspectRatio == AspectRatio::kKeep) {
    if (pixelWidth == 0 || pixelHeight == 0) {
      throw Error::DivisionByZero("has no pixels whose ratio could be kept")
          .WithObject("PDFImage " + image->NameInErrors(Internal()));
    }
    const double scale = MinOf(drawnWidth / pixelWidth, drawnHeight / pixelHeight);
    drawnWidth = scale * pixelWidth;
    drawnHeight = scale * pixelHeight;
  }

  const std::string_view name = image->ResourceName(Internal());
  Operation operation(surface_, growing_);
  surface_.AppendContent("q\n", Real{drawnWidth}, "0 0 ", Real{drawnHeight}, Real{x}, Real{y},
                         " cm\n", name, " Do\nQ\n");
  surface_.ResourceDictionary().AddImageResource(image);
  operation.Complete();
  Extend(x, y);
  Extend(static_cast<float>(x + drawnWidth), static_cast<float>(y + drawnHeight));
}

}  // namespace folivar
