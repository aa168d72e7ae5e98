#include "folivar/document/PDFResourceDictionary.h"

#include <memory>
#include <string_view>

#include "folivar/document/Internal.h"
#include "folivar/document/Object.h"
#include "folivar/fonts/FaceUser.h"
#include "folivar/fonts/PDFFontInfo.h"

namespace folivar {

void PDFResourceDictionary::AddFontResource(const FaceUser& font) {
  const std::shared_ptr<PDFFontInfo>& face = font.FontInfo(Internal());
  if (HasFace(*face)) return;
  faces_.reserve(faces_.size() + 1);
  if (!fonts_.KeyExists(face->m_PDFName)) fonts_.Add(face, face->m_PDFName);
  faces_.push_back(face.get());
}

void PDFResourceDictionary::BuildResourceText(PDFText& text) const {
  text.Append("<< \n/Font <<");
  fonts_.ForEach([&](const Value& entry) {
    const auto& face = static_cast<const PDFFontInfo&>(**entry.As<std::shared_ptr<Object>>());
    text.Append(" ", std::string_view(face.m_PDFName), " ", Reference{face.ObjectNumber()}, "\n");
  });
  text.Append(" >>\n>>\n");
}

}  // namespace folivar
