#include "folivar/textbox/PDFTextBoxes.h"

#include <utility>

#include "folivar/base/InMember.h"
#include "folivar/base/Internal.h"
#include "folivar/base/KeyedName.h"
#include "folivar/drawing/ClipBox.h"
#include "folivar/drawing/Surface.h"

namespace folivar {

PDFTextBoxes::PDFTextBoxes(const Internal& internal, std::weak_ptr<Canvas> parent,
                           std::shared_ptr<Surface> parentSurface)
    : MemberList(internal, "PDFTextBoxes"),
      parent_(std::move(parent)),
      parentSurface_(std::move(parentSurface)) {}

std::shared_ptr<PDFTextBox> PDFTextBoxes::Add(TextView key, const Value& before,
                                              const Value& after) {
  return InMember("PDFTextBoxes.Add", [&] {
    auto box = std::make_shared<PDFTextBox>(Internal(), parent_, parentSurface_, key);
    members_.Add(box, key, before, after);
    return box;
  });
}

void PDFTextBoxes::Remove(const Value& indexOrKey) { members_.Remove(indexOrKey); }

void PDFTextBoxes::ExtendClipBox(const Internal&, ClipBox& clipBox) const {
  ForEach([&](const PDFTextBox& box) {
    OfObject([&] { return KeyedName("PDFTextBox", box.Key()); },
             [&] {
               clipBox.ExtendClipBox(box.Left(), box.Bottom());
               clipBox.ExtendClipBox(box.Right(), box.Top());
             });
  });
}

void PDFTextBoxes::RegisterFaces(const Internal& internal) const {
  ForEach([&](const PDFTextBox& box) { box.RegisterFaces(internal); });
}

void PDFTextBoxes::Render(const Internal& internal, PDFText& content) const {
  ForEach([&](PDFTextBox& box) { box.RenderTextBox(internal, content); });
}

}  // namespace folivar
