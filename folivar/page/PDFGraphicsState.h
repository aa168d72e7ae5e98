#pragma once

#include <cstdint>
#include <memory>

#include "folivar/base/Api.h"
#include "folivar/base/Object.h"

namespace folivar {

class Internal;
class Surface;

// The drawing state of one page, template or text box: colours, line style, transformations. Made
// with its owner, the same object each time. Every setter appends its operator to the owner's
// content at once (setting the same colour twice writes it twice) and remembers the value for its
// getter. Numbers that PDF cannot hold (not finite, or 2^31 and beyond) raise 6, and then nothing
// is stored or appended.
//
// Colours are 0x00BBGGRR, red in the low byte; Rgb and Gray make them. The top byte is kept but
// means nothing.
class FOLIVAR_API PDFGraphicsState final : public Object {
 public:
  // Black at first.
  std::int32_t FillColor() const;
  void SetFillColor(std::int32_t color);
  std::int32_t StrokeColor() const;
  void SetStrokeColor(std::int32_t color);

  // Gray levels from 0 (black) to 1 (white); any other value is ignored without an error. Both
  // setters store the level as FillColor, the stroke one too.
  void SetFillGrayColor(float gray);
  void SetStrokeGrayColor(float gray);

  // Points; 1 at first.
  float LineWidth() const;
  void SetLineWidth(float width);

  // Points of line and of gap; 1 and 0, a solid line, at first.
  float LineDashOn() const;
  float LineDashOff() const;
  void SetLineDashPattern(float dashOn, float dashOff);

  // Saves the state and restores the state saved last. After Push the getters report 0 until the
  // setters are used again, though drawing goes on as before. Pop always returns false;
  // it raises 9 when nothing was pushed. A Push without its Pop is not corrected.
  void Push();
  bool Pop();

  // Transformations of everything drawn from here on; never tracked, only written. Angles are in
  // degrees, counter-clockwise.
  void Translate(float tx, float ty);
  void ScaleXY(float sx, float sy);
  void Rotate(float angle);
  void Skew(float xAngle, float yAngle);
  // x' = a x + c y + e, y' = b x + d y + f.
  void SetTransformationMatrix(float a, float b, float c, float d, float e, float f);

  // For the library

  PDFGraphicsState(const Internal&, std::shared_ptr<Surface> surface);

 private:
  std::shared_ptr<Surface> surface_;
};

}  // namespace folivar
