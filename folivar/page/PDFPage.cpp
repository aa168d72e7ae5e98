#include "folivar/page/PDFPage.h"

#include <string>
#include <utility>

#include "folivar/base/Error.h"
#include "folivar/base/InMember.h"
#include "folivar/base/Internal.h"
#include "folivar/base/KeyedName.h"
#include "folivar/document/PDFDocument.h"
#include "folivar/document/PDFPages.h"
#include "folivar/drawing/Drawing.h"
#include "folivar/drawing/Surface.h"
#include "folivar/file/ObjectNumbers.h"
#include "folivar/file/PDFText.h"
#include "folivar/file/SaveFile.h"
#include "folivar/fonts/PDFFont.h"
#include "folivar/images/PDFImage.h"
#include "folivar/navigation/PDFHyperLinks.h"
#include "folivar/page/PDFGraphicsState.h"
#include "folivar/page/PDFTemplate.h"
#include "folivar/textbox/PDFTextBoxes.h"

namespace folivar {
namespace {

ObjectWriter& AsWriter(const std::shared_ptr<PDFHyperLinks>& links) { return *links; }

}  // namespace

PDFPage::PDFPage(const Internal& internal, std::weak_ptr<PDFPages> parent,
                 std::weak_ptr<PDFDocument> document, std::shared_ptr<PDFFont> font, TextView key)
    : key_(key),
      parent_(std::move(parent)),
      surface_(std::make_shared<Surface>(std::move(document))),
      graphicsState_(std::make_shared<PDFGraphicsState>(internal, surface_)) {
  surface_->SetFont(std::move(font));
}

std::shared_ptr<PDFFont> PDFPage::Font() const { return surface_->Font(); }
void PDFPage::SetFont(std::shared_ptr<PDFFont> font) {
  InMember("PDFPage.Font", [&] { surface_->SetFont(std::move(font)); });
}

std::shared_ptr<PDFDocument> PDFPage::ParentDocument() const {
  if (auto document = surface_->ParentDocument().lock()) return document;
  throw Error::ObjectNotSet("the document is gone").WithMember("PDFPage.ParentDocument");
}

void PDFPage::SetPageExtents(float width, float height) {
  width_ = width;
  height_ = height;
}

void PDFPage::SetClipBox(float left, float bottom, float right, float top) {
  clipBox_ = {left, bottom, right, top};
}

void PDFPage::GetClipBox(float& left, float& bottom, float& right, float& top) const {
  left = clipBox_.left;
  bottom = clipBox_.bottom;
  right = clipBox_.right;
  top = clipBox_.top;
}

std::shared_ptr<PDFTextBoxes> PDFPage::TextBoxes() {
  if (!textBoxes_) {
    textBoxes_ = std::make_shared<PDFTextBoxes>(Internal(), Shared<PDFPage>(), surface_);
  }
  return textBoxes_;
}

std::shared_ptr<PDFHyperLinks> PDFPage::HyperLinks() {
  if (!hyperLinks_) hyperLinks_ = std::make_shared<PDFHyperLinks>(Internal(), parent_);
  return hyperLinks_;
}

void PDFPage::DrawText(TextView text, float x, float y) {
  InMember("PDFPage.DrawText", [&] { Drawing(*surface_).DrawText(text, x, y); });
}

void PDFPage::DrawTextAligned(TextView text, float left, float bottom, float width, float height,
                              PDFHorzTextAlignment horzAlignment,
                              PDFVertTextAlignment vertAlignment) {
  InMember("PDFPage.DrawTextAligned", [&] {
    Drawing(*surface_).DrawTextAligned(text, left, bottom, width, height, horzAlignment,
                                       vertAlignment);
  });
}

void PDFPage::DrawLine(float x1, float y1, float x2, float y2) {
  InMember("PDFPage.DrawLine", [&] { Drawing(*surface_).DrawLine(x1, y1, x2, y2); });
}

void PDFPage::DrawLineTo(float x, float y) {
  InMember("PDFPage.DrawLineTo", [&] { Drawing(*surface_).DrawLineTo(x, y); });
}

void PDFPage::SetCurPos(float x, float y) { surface_->SetCurPos({x, y}); }

void PDFPage::GetCurPos(float& x, float& y) const {
  x = surface_->CurPos().x;
  y = surface_->CurPos().y;
}

void PDFPage::DrawRect(float left, float bottom, float width, float height, bool stroke,
                       bool fill) {
  InMember("PDFPage.DrawRect",
           [&] { Drawing(*surface_).DrawRect(left, bottom, width, height, stroke, fill); });
}

void PDFPage::DrawImage(const std::shared_ptr<PDFImage>& image, float x, float y,
                        const Value& width, const Value& height, bool maintainAspectRatio) {
  InMember("PDFPage.DrawImage",
           [&] { Drawing(*surface_).DrawImage(image, x, y, width, height, maintainAspectRatio); });
}

void PDFPage::SetThumbnail(std::shared_ptr<PDFImage> thumbnail) {
  if (thumbnail) {
    InMember("PDFPage.Thumbnail", [&] { surface_->CheckIsOfDocument(thumbnail.get(), "image"); });
  }
  thumbnail_ = std::move(thumbnail);
}

void PDFPage::DrawTemplate(const std::shared_ptr<PDFTemplate>& placed, const Value& x,
                           const Value& y) {
  InMember("PDFPage.DrawTemplate", [&] { Drawing(*surface_).DrawTemplate(placed, x, y); });
}

bool PDFPage::IsNumberedIn(const Internal&, const std::weak_ptr<PDFPages>& pages) const {
  return objectNumber_ != 0 && !parent_.owner_before(pages) && !pages.owner_before(parent_);
}

std::exception_ptr PDFPage::RaisePageRemoved(const Internal& internal) {
  if (isBeingRemoved_) return nullptr;
  isBeingRemoved_ = true;
  std::exception_ptr thrown = pageRemoved_.Raise(internal, *this);
  isBeingRemoved_ = false;
  return thrown;
}

void PDFPage::NumberObjects(ObjectNumbers& numbers) {
  objectNumber_ = numbers.Take();
  contentNumber_ = numbers.Take();
  if (hyperLinks_) AsWriter(hyperLinks_).NumberObjects(numbers);
}

void PDFPage::WriteObjects(SaveFile& file) {
  if (textBoxes_) textBoxes_->RegisterFaces(Internal());
  BuildPageObject(file.BeginObject(objectNumber_));
  file.EndObject();
  PDFText& textBoxes = file.Draft();
  if (textBoxes_) textBoxes_->Render(Internal(), textBoxes);
  WriteContentStream(file, textBoxes.Bytes());
  if (hyperLinks_) AsWriter(hyperLinks_).WriteObjects(file);
}

//   4 0 obj
//   << /Type /Page
//   /Parent 3 0 R
//   /MediaBox [ 0 0 612  792 ]
//   /CropBox [ 10  20  300  400 ]
//   /Contents 5 0 R
//   /Resources <<
//   /Font << /F0 6 0 R
//    >>
//   >>
//   /Annots [ 6 0 R 7 0 R ]
//   /Thumb 9 0 R
//   >>
//   endobj
void PDFPage::BuildPageObject(PDFText& text) const {
  text.Append("<< /Type /Page\n/Parent ", Reference{parent_.lock()->TreeNodeNumber(Internal())},
              "\n");
  OfObject([&] { return "extents or clip box of " + KeyedName("PDFPage", Key()); },
           [&] { AppendBoxes(text); });
  text.Append("/Contents ", Reference{contentNumber_}, "\n/Resources ");
  surface_->ResourceDictionary().BuildResourceText(text);
  if (hyperLinks_) hyperLinks_->AppendAnnots(Internal(), text);
  if (const XObject* thumbnail = thumbnail_.get()) {
    text.Append("/Thumb ", Reference{thumbnail->ObjectNumber(Internal())}, "\n");
  }
  text.Append(">>\n");
}

void PDFPage::AppendBoxes(PDFText& text) const {
  text.Append("/MediaBox [ 0 0 ", Real{width_}, " ", Real{height_}, "]\n");
  if (clipBox_.top >= 0) {
    text.Append("/CropBox [ ", Real{clipBox_.left}, " ", Real{clipBox_.bottom}, " ",
                Real{clipBox_.right}, " ", Real{clipBox_.top}, "]\n");
  }
}

//   5 0 obj
//   << /Length 0000000004 >>
//   stream
//   q
//   Q
//   endstream
//   endobj
void PDFPage::WriteContentStream(SaveFile& file, std::string_view textBoxes) const {
  file.BeginObject(contentNumber_).Append("<< ");
  surface_->WriteStream(file, textBoxes);
  file.EndObject();
}

}  // namespace folivar
