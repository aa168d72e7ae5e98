#pragma once

#include <memory>

#include "folivar/base/Text.h"
#include "folivar/base/Value.h"
#include "folivar/drawing/AspectRatio.h"
#include "folivar/drawing/ClipBox.h"
#include "folivar/drawing/PDFTextAlignment.h"
#include "folivar/drawing/Paint.h"

namespace folivar {

class FontMetrics;
class PDFFont;
class PDFImage;
class Surface;
class TextLines;
class XObject;

// The drawing operations that every kind of surface offers, each written at once as its complete
// sequence of operators. An operation that fails appends nothing, does not move the pen and does
// not grow the box.
class Drawing {
 public:
  // Operations extend `growing`, where there is one, by the points that they draw.
  explicit Drawing(Surface& surface, ClipBox* growing = nullptr)
      : surface_(surface), growing_(growing) {}

  void DrawText(TextView text, float x, float y);
  void DrawTextAligned(TextView text, float left, float bottom, float width, float height,
                       PDFHorzTextAlignment horzAlignment, PDFVertTextAlignment vertAlignment);
  void DrawLine(float x1, float y1, float x2, float y2);
  void DrawLineTo(float x, float y);
  void DrawRect(float left, float bottom, float width, float height, Paint paint);
  void DrawImage(const std::shared_ptr<PDFImage>& image, float x, float y, const Value& width,
                 const Value& height, AspectRatio aspectRatio);
  void DrawTemplate(const std::shared_ptr<const XObject>& placed, const Value& x, const Value& y);

 private:
  void Extend(float x, float y) {
    if (growing_ != nullptr) growing_->ExtendClipBox(x, y);
  }
  void ListFace(const PDFFont& font);
  void ExtendByText(const FontMetrics& font, const TextLines& lines, bool isPlain, float x,
                    float y);

  Surface& surface_;
  ClipBox* growing_;
};

}  // namespace folivar
