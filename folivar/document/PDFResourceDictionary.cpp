#include "folivar/document/PDFResourceDictionary.h"

#include <memory>
#include <string>
#include <string_view>

#include "folivar/base/Internal.h"
#include "folivar/base/Object.h"
#include "folivar/file/XObject.h"
#include "folivar/fonts/FaceUser.h"
#include "folivar/fonts/PDFFontInfo.h"

namespace folivar {
namespace {

void AddOnce(std::unique_ptr<KelCollection>& objects, const std::shared_ptr<XObject>& object) {
  if (!objects) objects = std::make_unique<KelCollection>();
  const std::string& name = object->ResourceName(Internal());
  if (!objects->KeyExists(name)) objects->Add(object, name);
}

bool HasEntries(const std::unique_ptr<KelCollection>& objects) {
  return objects && objects->Count() > 0;
}

void AppendEntries(PDFText& text, const std::unique_ptr<KelCollection>& objects) {
  if (!HasEntries(objects)) return;
  objects->ForEach([&](const Value& entry) {
    const auto& object = static_cast<const XObject&>(**entry.As<std::shared_ptr<Object>>());
    text.Append(" ", std::string_view(object.ResourceName(Internal())), " ",
                Reference{object.ObjectNumber(Internal())}, "\n");
  });
}

}  // namespace

void PDFResourceDictionary::AddFontResource(const FaceUser& font) {
  const std::shared_ptr<const PDFFontInfo>& face = font.FontInfo(Internal());
  if (HasFace(*face)) return;
  faces_.reserve(faces_.size() + 1);
  if (!fonts_.KeyExists(face->m_PDFName)) {
    fonts_.Add(std::const_pointer_cast<PDFFontInfo>(face), face->m_PDFName);
  }
  faces_.push_back(face.get());
}

void PDFResourceDictionary::AddTemplateResource(const std::shared_ptr<XObject>& object) {
  AddOnce(templates_, object);
}

void PDFResourceDictionary::AddImageResource(const std::shared_ptr<XObject>& image) {
  AddOnce(images_, image);
}

void PDFResourceDictionary::BuildResourceText(PDFText& text) const {
  text.Append("<< \n/Font <<");
  fonts_.ForEach([&](const Value& entry) {
    const auto& face = static_cast<const PDFFontInfo&>(**entry.As<std::shared_ptr<Object>>());
    text.Append(" ", std::string_view(face.m_PDFName), " ", Reference{face.ObjectNumber()}, "\n");
  });
  text.Append(" >>\n");
  if (HasEntries(templates_) || HasEntries(images_)) {
    text.Append("/XObject <<");
    AppendEntries(text, templates_);
    AppendEntries(text, images_);
    text.Append(" >>\n");
  }
  text.Append(">>\n");
}

}  // namespace folivar
