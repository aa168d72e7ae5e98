#include "folivar/page/PDFPage.h"

#include <string>
#include <utility>

#include "folivar/base/Error.h"
#include "folivar/base/InMember.h"
#include "folivar/base/Internal.h"
#include "folivar/base/KeyedName.h"
#include "folivar/base/SameOwner.h"
#include "folivar/drawing/Drawing.h"
#include "folivar/drawing/Surface.h"
#include "folivar/file/ObjectNumbers.h"
#include "folivar/file/SaveFile.h"
#include "folivar/images/PDFImage.h"
#include "folivar/navigation/PDFHyperLinks.h"
#include "folivar/page/PDFTemplate.h"
#include "folivar/textbox/PDFTextBoxes.h"

namespace folivar {

PDFPage::PDFPage(const Internal& internal, std::weak_ptr<PDFPages> parent,
                 std::weak_ptr<PDFDocument> document, std::shared_ptr<PDFFont> font, TextView key)
    : Canvas(internal, "PDFPage", std::move(document), std::move(font)),
      key_(key),
      parent_(std::move(parent)) {}

std::shared_ptr<PDFDocument> PDFPage::ParentDocument() const {
  if (auto document = TheSurface().ParentDocument().lock()) return document;
  throw Error::ObjectNotSet("the document is gone").WithMember("PDFPage.ParentDocument");
}

void PDFPage::SetPageExtents(float width, float height) {
  width_ = width;
  height_ = height;
}

void PDFPage::SetClipBox(float left, float bottom, float right, float top) {
  clipBox_ = {left, bottom, right, top};
}

std::shared_ptr<PDFHyperLinks> PDFPage::HyperLinks() {
  if (!hyperLinks_) hyperLinks_ = std::make_shared<PDFHyperLinks>(Internal(), parent_);
  return hyperLinks_;
}

void PDFPage::SetThumbnail(std::shared_ptr<PDFImage> thumbnail) {
  if (thumbnail) {
    InMember("PDFPage.Thumbnail",
             [&] { TheSurface().CheckIsOfDocument(thumbnail.get(), "PDFImage"); });
  }
  thumbnail_ = std::move(thumbnail);
}

void PDFPage::DrawTemplate(const std::shared_ptr<PDFTemplate>& placed, const Value& x,
                           const Value& y) {
  InMember("PDFPage.DrawTemplate", [&] { Drawing(TheSurface()).DrawTemplate(placed, x, y); });
}

bool PDFPage::IsNumberedIn(const Internal&, const std::weak_ptr<PDFPages>& pages) const {
  return !object_.IsNone() && AreSame(parent_, pages);
}

std::exception_ptr PDFPage::RaisePageRemoved(const Internal& internal) {
  if (isBeingRemoved_) return nullptr;
  isBeingRemoved_ = true;
  std::exception_ptr thrown = pageRemoved_.Raise(internal, *this);
  isBeingRemoved_ = false;
  return thrown;
}

void PDFPage::NumberObjects(const Internal& internal, ObjectNumbers& numbers) {
  object_ = numbers.Take();
  content_ = numbers.Take();
  if (hyperLinks_) hyperLinks_->NumberObjects(internal, numbers);
}

//   5 0 obj
//   << /Length 0000000004 >>
//   stream
//   q
//   Q
//   endstream
//   endobj
void PDFPage::WriteObjects(const Internal& internal, SaveFile& file, Reference treeNode) {
  const PDFTextBoxes* boxes = MadeTextBoxes();
  if (boxes != nullptr) boxes->RegisterFaces(internal);
  BuildPageObject(file.BeginObject(object_), treeNode);
  file.EndObject();

  PDFText& drawnBoxes = file.Draft();
  if (boxes != nullptr) boxes->Render(internal, drawnBoxes);
  PDFText& dictionary = file.BeginObject(content_);
  dictionary.Append("<< ");
  WriteContentStream(file, dictionary, drawnBoxes.Bytes());
  file.EndObject();
  if (hyperLinks_) hyperLinks_->WriteObjects(internal, file);
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
void PDFPage::BuildPageObject(PDFText& text, Reference treeNode) const {
  text.Append("<< /Type /Page\n/Parent ", treeNode, "\n");
  OfObject([&] { return "extents or clip box of " + KeyedName("PDFPage", Key()); },
           [&] { AppendBoxes(text); });
  text.Append("/Contents ", content_, "\n/Resources ");
  TheSurface().ResourceDictionary().BuildResourceText(text);
  if (hyperLinks_) hyperLinks_->AppendAnnots(Internal(), text);
  if (thumbnail_) text.Append("/Thumb ", thumbnail_->ObjectNumber(Internal()), "\n");
  text.Append(">>\n");
}

void PDFPage::AppendBoxes(PDFText& text) const {
  text.Append("/MediaBox [ 0 0 ", Real{width_}, " ", Real{height_}, "]\n");
  if (clipBox_.top >= 0) {
    text.Append("/CropBox [ ", Real{clipBox_.left}, " ", Real{clipBox_.bottom}, " ",
                Real{clipBox_.right}, " ", Real{clipBox_.top}, "]\n");
  }
}

}  // namespace folivar
