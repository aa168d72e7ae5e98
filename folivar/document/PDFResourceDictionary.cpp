#include "folivar/document/PDFResourceDictionary.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "folivar/base/Internal.h"
#include "folivar/file/XObject.h"
#include "folivar/fonts/PDFFont.h"
#include "folivar/fonts/PDFFontInfo.h"

namespace folivar {
namespace {

template <class XObjects>
void AddOnce(std::unique_ptr<XObjects>& objects, const std::shared_ptr<const XObject>& object) {
  if (!objects) objects = std::make_unique<XObjects>("PDFResourceDictionary");
  const std::string& name = object->ResourceName(Internal());
  if (!objects->KeyExists(name)) objects->Add(object, name);
}

template <class XObjects>
bool HasEntries(const std::unique_ptr<XObjects>& objects) {
  return objects && objects->Count() > 0;
}

template <class XObjects>
void AppendEntries(PDFText& text, const std::unique_ptr<XObjects>& objects) {
  if (!HasEntries(objects)) return;
  objects->ForEach([&](const std::shared_ptr<const XObject>& object) {
    text.Append(" ", std::string_view(object->ResourceName(Internal())), " ",
                object->ObjectNumber(Internal()), "\n");
  });
}

}  // namespace

void PDFResourceDictionary::AddFontResource(const PDFFont& font) {
  const std::shared_ptr<const PDFFontInfo>& face = font.FontInfo(Internal());
  if (std::find(recentFaces_.begin(), recentFaces_.end(), face.get()) != recentFaces_.end()) return;
  if (!fonts_.KeyExists(face->m_PDFName)) fonts_.Add(face, face->m_PDFName);
  recentFaces_[oldestFace_++] = face.get();
  oldestFace_ %= recentFaces_.size();
}

void PDFResourceDictionary::AddTemplateResource(const std::shared_ptr<const XObject>& placed) {
  AddOnce(templates_, placed);
}

void PDFResourceDictionary::AddImageResource(const std::shared_ptr<const XObject>& image) {
  AddOnce(images_, image);
}

void PDFResourceDictionary::BuildResourceText(PDFText& text) const {
  text.Append("<< \n/Font <<");
  fonts_.ForEach([&](const std::shared_ptr<const PDFFontInfo>& face) {
    text.Append(" ", std::string_view(face->m_PDFName), " ", face->ObjectNumber(), "\n");
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
