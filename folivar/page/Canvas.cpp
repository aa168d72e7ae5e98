#include "folivar/page/Canvas.h"

#include <cstddef>
#include <utility>

#include "folivar/base/InMember.h"
#include "folivar/base/Internal.h"
#include "folivar/drawing/Drawing.h"
#include "folivar/drawing/Surface.h"
#include "folivar/file/SaveFile.h"
#include "folivar/fonts/PDFFont.h"
#include "folivar/images/PDFImage.h"
#include "folivar/page/PDFGraphicsState.h"
#include "folivar/textbox/PDFTextBoxes.h"

namespace folivar {

Canvas::Canvas(const Internal& internal, const char* className, std::weak_ptr<PDFDocument> document,
               std::shared_ptr<PDFFont> font)
    : className_(className),
      surface_(std::make_shared<Surface>(std::move(document))),
      graphicsState_(std::make_shared<PDFGraphicsState>(internal, surface_)) {
  surface_->SetFont(std::move(font));
}

Canvas::~Canvas() = default;

std::shared_ptr<PDFFont> Canvas::Font() const { return surface_->Font(); }

void Canvas::SetFont(std::shared_ptr<PDFFont> font) {
  InMember(className_, "Font", [&] { surface_->SetFont(std::move(font)); });
}

std::shared_ptr<PDFTextBoxes> Canvas::TextBoxes() {
  if (!textBoxes_) {
    textBoxes_ = std::make_shared<PDFTextBoxes>(Internal(), Shared<Canvas>(), surface_);
  }
  return textBoxes_;
}

template <class Operation>
void Canvas::Draw(const char* member, Operation operation) {
  InMember(className_, member, [&] {
    Drawing drawing(*surface_, GrowingClipBox());
    operation(drawing);
  });
}

void Canvas::DrawText(TextView text, float x, float y) {
  Draw("DrawText", [&](Drawing& drawing) { drawing.DrawText(text, x, y); });
}

void Canvas::DrawTextAligned(TextView text, float left, float bottom, float width, float height,
                             PDFHorzTextAlignment horzAlignment,
                             PDFVertTextAlignment vertAlignment) {
  Draw("DrawTextAligned", [&](Drawing& drawing) {
    drawing.DrawTextAligned(text, left, bottom, width, height, horzAlignment, vertAlignment);
  });
}

void Canvas::DrawLine(float x1, float y1, float x2, float y2) {
  Draw("DrawLine", [&](Drawing& drawing) { drawing.DrawLine(x1, y1, x2, y2); });
}

void Canvas::DrawLineTo(float x, float y) {
  Draw("DrawLineTo", [&](Drawing& drawing) { drawing.DrawLineTo(x, y); });
}

Point Canvas::GetCurPos() const { return surface_->CurPos(); }

void Canvas::SetCurPos(float x, float y) { surface_->SetCurPos({x, y}); }

void Canvas::DrawRect(float left, float bottom, float width, float height, Paint paint) {
  Draw("DrawRect", [&](Drawing& drawing) { drawing.DrawRect(left, bottom, width, height, paint); });
}

void Canvas::DrawImage(const std::shared_ptr<PDFImage>& image, float x, float y, const Value& width,
                       const Value& height, AspectRatio aspectRatio) {
  Draw("DrawImage",
       [&](Drawing& drawing) { drawing.DrawImage(image, x, y, width, height, aspectRatio); });
}

//   /Length 0000000004 >>
//   stream
//   q
//   Q
//   % Begin Textbox
//   ...
//   endstream
void Canvas::WriteContentStream(SaveFile& file, PDFText& dictionary,
                                std::string_view textBoxes) const {
  const std::size_t length = surface_->StreamLength(textBoxes);
  dictionary.Append("/Length ", TenDigits{length}, " ");
  file.WriteStream(StreamKind::kText, length,
                   [&](ByteSink& out) { surface_->WriteStream(out, textBoxes); });
}

}  // namespace folivar
