#pragma once

#include "folivar/document/Text.h"
#include "folivar/page/PDFTextAlignment.h"

namespace folivar {

class Surface;

// The drawing operations that every kind of surface offers, each written at once as its complete
// sequence of operators. An operation that fails appends nothing and does not move the pen.
class Drawing {
 public:
  explicit Drawing(Surface& surface) : surface_(surface) {}

  void DrawText(TextView text, float x, float y);
  void DrawTextAligned(TextView text, float left, float bottom, float width, float height,
                       PDFHorzTextAlignment horzAlignment, PDFVertTextAlignment vertAlignment);
  void DrawLine(float x1, float y1, float x2, float y2);
  void DrawLineTo(float x, float y);
  void DrawRect(float left, float bottom, float width, float height, bool stroke, bool fill);

 private:
  Surface& surface_;
};

}  // namespace folivar
