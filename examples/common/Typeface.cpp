#include "common/Typeface.h"

std::string StandardFaceNotice(std::string_view standardFace) {
  return "there are characters beyond ASCII, which " + std::string(standardFace) +
         " shows wrongly or not at all; --font NAME embeds a TrueType font that has them";
}

std::shared_ptr<folivar::PDFDocument> MakeDocument(const Typeface& typeface) {
  folivar::Platform platform;
  platform.fontFiles = typeface.files;
  return folivar::PDFDocument::Create(platform);
}

std::shared_ptr<folivar::PDFFont> AddUpright(folivar::PDFDocument& document,
                                             const Typeface& typeface,
                                             std::string_view standardFace) {
  if (typeface.family.empty()) return document.Fonts()->Add(standardFace);
  return document.Fonts()->Add(typeface.family, folivar::fontTrueType, folivar::Embedding::kEmbed);
}
