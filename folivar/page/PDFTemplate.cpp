#include "folivar/page/PDFTemplate.h"

#include <utility>

#include "folivar/base/InMember.h"
#include "folivar/base/Internal.h"
#include "folivar/base/Numbers.h"
#include "folivar/drawing/Surface.h"
#include "folivar/file/SaveFile.h"
#include "folivar/textbox/PDFTextBoxes.h"

namespace folivar {
namespace {

// Makes what errors call the template.
auto NameOf(const PDFTemplate& drawn) {
  return [&drawn] { return "PDFTemplate " + drawn.NameInErrors(Internal()); };
}

}  // namespace

PDFTemplate::PDFTemplate(const Internal& internal, const std::weak_ptr<PDFDocument>& document,
                         std::shared_ptr<PDFFont> font, TextView key, std::string resourceName)
    : Canvas(internal, "PDFTemplate", document, std::move(font)),
      XObject(document, key, std::move(resourceName)) {}

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
  return InMemberOf(NameOf(*this), "PDFTemplate.Width",
                    [&] { return Finite(clipBox_.right - clipBox_.left); });
}
void PDFTemplate::SetWidth(float width) {
  InMemberOf(NameOf(*this), "PDFTemplate.Width",
             [&] { clipBox_.right = Finite(clipBox_.left + width); });
}

float PDFTemplate::Height() const {
  return InMemberOf(NameOf(*this), "PDFTemplate.Height",
                    [&] { return Finite(clipBox_.top - clipBox_.bottom); });
}
void PDFTemplate::SetHeight(float height) {
  InMemberOf(NameOf(*this), "PDFTemplate.Height",
             [&] { clipBox_.top = Finite(clipBox_.bottom + height); });
}

void PDFTemplate::SetClipBox(float left, float bottom, float right, float top) {
  clipBox_ = {left, bottom, right, top};
}

void PDFTemplate::ExpandClipBoxToFitTextBoxes() {
  if (MadeTextBoxes() == nullptr) return;
  ClipBox clipBox = clipBox_;
  InMember("PDFTemplate.ExpandClipBoxToFitTextBoxes",
           [&] { MadeTextBoxes()->ExtendClipBox(Internal(), clipBox); });
  clipBox_ = clipBox;
}

void PDFTemplate::NumberObjects(const Internal&, ObjectNumbers& numbers) { TakeNumber(numbers); }

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
void PDFTemplate::WriteObjects(const Internal& internal, SaveFile& file) {
  const auto name = NameOf(*this);
  // Deliberate: a box that sizes itself is counted as it was before.
  if (autoSizeClipBox_) OfObject(name, [&] { ExpandClipBoxToFitTextBoxes(); });
  PDFText& drawnBoxes = file.Draft();
  if (const PDFTextBoxes* boxes = MadeTextBoxes()) {
    boxes->RegisterFaces(internal);
    boxes->Render(internal, drawnBoxes);
  }
  PDFText& text = file.BeginObject(ObjectNumber(internal));
  text.Append("<< /Type /XObject\n/Subtype /Form\n/FormType 1\n");
  OfObject([&] { return "clip box of " + name(); },
           [&] {
             text.Append("/BBox [ ", Real{clipBox_.left}, " ", Real{clipBox_.bottom}, " ",
                         Real{clipBox_.right}, " ", Real{clipBox_.top}, "]\n");
           });
  text.Append("/Resources ");
  TheSurface().ResourceDictionary().BuildResourceText(text);
  WriteContentStream(file, text, drawnBoxes.Bytes());
  file.EndObject();
}

}  // namespace folivar
