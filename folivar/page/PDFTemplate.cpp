#include "folivar/page/PDFTemplate.h"

#include <utility>

#include "folivar/base/InMember.h"
#include "folivar/base/Internal.h"
#include "folivar/base/Numbers.h"
#include "folivar/drawing/Drawing.h"
#include "folivar/drawing/Surface.h"
#include "folivar/file/ObjectNumbers.h"
#include "folivar/file/PDFText.h"
#include "folivar/file/SaveFile.h"
#include "folivar/fonts/PDFFont.h"
#include "folivar/page/PDFGraphicsState.h"
#include "folivar/textbox/PDFTextBoxes.h"

namespace folivar {

PDFTemplate::PDFTemplate(const Internal& internal, const std::weak_ptr<PDFDocument>& document,
                         std::shared_ptr<PDFFont> font, TextView key, std::string resourceName)
    : key_(key),
      resourceName_(std::move(resourceName)),
      surface_(std::make_shared<Surface>(document)),
      graphicsState_(std::make_shared<PDFGraphicsState>(internal, surface_)) {
  surface_->SetFont(std::move(font));
}

std::shared_ptr<PDFFont> PDFTemplate::Font() const { return surface_->Font(); }
void PDFTemplate::SetFont(std::shared_ptr<PDFFont> font) {
  InMember("PDFTemplate.Font", [&] { surface_->SetFont(std::move(font)); });
}

void PDFTemplate::SetBottom(float bottom) {
  clipBox_.bottom = bottom;
  if (bottom > clipBox_.top) std::swap(clipBox_.bottom, clipBox_.top);
}

void PDFTemplate::SetRight(float right) {
  clipBox_.right = right;
  if (right < clipBox_.left) std::swap(clipBox_.right, clipBox_.left);
}

// Deliberate: a negative width or height puts no edges in order, unlike setting the edge itself.
float PDFTemplate::Width() const {
  return InMember("PDFTemplate.Width", [&] { return Finite(clipBox_.right - clipBox_.left); });
}
void PDFTemplate::SetWidth(float width) {
  InMember("PDFTemplate.Width", [&] { clipBox_.right = Finite(clipBox_.left + width); });
}

float PDFTemplate::Height() const {
  return InMember("PDFTemplate.Height", [&] { return Finite(clipBox_.top - clipBox_.bottom); });
}
void PDFTemplate::SetHeight(float height) {
  InMember("PDFTemplate.Height", [&] { clipBox_.top = Finite(clipBox_.bottom + height); });
}

void PDFTemplate::SetClipBox(float left, float bottom, float right, float top) {
  clipBox_ = {left, bottom, right, top};
}

void PDFTemplate::GetClipBox(float& left, float& bottom, float& right, float& top) const {
  left = clipBox_.left;
  bottom = clipBox_.bottom;
  right = clipBox_.right;
  top = clipBox_.top;
}

std::shared_ptr<PDFTextBoxes> PDFTemplate::TextBoxes() {
  if (!textBoxes_) {
    textBoxes_ = std::make_shared<PDFTextBoxes>(Internal(), Shared<PDFTemplate>(), surface_);
  }
  return textBoxes_;
}

void PDFTemplate::ExpandClipBoxToFitTextBoxes() {
  if (!textBoxes_) return;
  ClipBox clipBox = clipBox_;
  InMember("PDFTemplate.ExpandClipBoxToFitTextBoxes",
           [&] { textBoxes_->ExtendClipBox(Internal(), clipBox); });
  clipBox_ = clipBox;
}

void PDFTemplate::DrawText(TextView text, float x, float y) {
  InMember("PDFTemplate.DrawText",
           [&] { Drawing(*surface_, GrowingClipBox()).DrawText(text, x, y); });
}

void PDFTemplate::DrawTextAligned(TextView text, float left, float bottom, float width,
                                  float height, PDFHorzTextAlignment horzAlignment,
                                  PDFVertTextAlignment vertAlignment) {
  InMember("PDFTemplate.DrawTextAligned", [&] {
    Drawing(*surface_, GrowingClipBox())
        .DrawTextAligned(text, left, bottom, width, height, horzAlignment, vertAlignment);
  });
}

void PDFTemplate::DrawLine(float x1, float y1, float x2, float y2) {
  InMember("PDFTemplate.DrawLine",
           [&] { Drawing(*surface_, GrowingClipBox()).DrawLine(x1, y1, x2, y2); });
}

void PDFTemplate::DrawLineTo(float x, float y) {
  InMember("PDFTemplate.DrawLineTo",
           [&] { Drawing(*surface_, GrowingClipBox()).DrawLineTo(x, y); });
}

void PDFTemplate::SetCurPos(float x, float y) { surface_->SetCurPos({x, y}); }

void PDFTemplate::GetCurPos(float& x, float& y) const {
  x = surface_->CurPos().x;
  y = surface_->CurPos().y;
}

void PDFTemplate::DrawRect(float left, float bottom, float width, float height, bool stroke,
                           bool fill) {
  InMember("PDFTemplate.DrawRect", [&] {
    Drawing(*surface_, GrowingClipBox()).DrawRect(left, bottom, width, height, stroke, fill);
  });
}

void PDFTemplate::DrawImage(const std::shared_ptr<PDFImage>& image, float x, float y,
                            const Value& width, const Value& height, bool maintainAspectRatio) {
  InMember("PDFTemplate.DrawImage", [&] {
    Drawing(*surface_, GrowingClipBox()).DrawImage(image, x, y, width, height, maintainAspectRatio);
  });
}

const std::weak_ptr<PDFDocument>& PDFTemplate::ParentDocument(const Internal&) const {
  return surface_->ParentDocument();
}

void PDFTemplate::NumberObjects(ObjectNumbers& numbers) { objectNumber_ = numbers.Take(); }

//   6 0 obj
//   << /Type /XObject
//   /Subtype /Form
//   /FormType 1
//   /BBox [ 0  0  30  40 ]
//   /Resources <<
//   /Font << /F0 7 0 R
//    >>
//   >>
//   /Length 0000000027 >>
//   stream
//   q
//   10  20  m
//   30  40  l
//   S
//   Q
//   endstream
//   endobj
void PDFTemplate::WriteObjects(SaveFile& file) {
  const auto name = [&] { return "PDFTemplate " + NameOf(*this); };
  // Deliberate: a box that sizes itself is counted as it was before.
  if (autoSizeClipBox_) OfObject(name, [&] { ExpandClipBoxToFitTextBoxes(); });
  PDFText& textBoxes = file.Draft();
  if (textBoxes_) {
    textBoxes_->RegisterFaces(Internal());
    textBoxes_->Render(Internal(), textBoxes);
  }
  PDFText& text = file.BeginObject(objectNumber_);
  text.Append("<< /Type /XObject\n/Subtype /Form\n/FormType 1\n");
  OfObject([&] { return "clip box of " + name(); },
           [&] {
             text.Append("/BBox [ ", Real{clipBox_.left}, " ", Real{clipBox_.bottom}, " ",
                         Real{clipBox_.right}, " ", Real{clipBox_.top}, "]\n");
           });
  text.Append("/Resources ");
  surface_->ResourceDictionary().BuildResourceText(text);
  surface_->WriteStream(file, textBoxes.Bytes());
  file.EndObject();
}

}  // namespace folivar
