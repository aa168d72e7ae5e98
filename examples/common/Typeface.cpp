#include "common/Typeface.h"

Typeface FindTypeface(const std::string& family, const std::vector<std::string>& folders,
                      const std::function<void(std::string_view)>& warn) {
  Typeface typeface{family};
  for (const std::string& folder : folders) {
    for (const folivar::Text& refusal : typeface.files->AddFolder(folder)) warn(refusal.Utf8());
  }
  return typeface;
}

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
  const bool embed = true;
  return document.Fonts()->Add(typeface.family, folivar::fontTrueType, embed);
}
