#include "BookStyle.h"

#include <memory>
#include <utility>

using folivar::PDFFont;

namespace {

using Font = std::shared_ptr<PDFFont>;

TextStyle Styled(const Font& face, float size, std::int32_t color) {
  auto font = face->Clone();
  font->SetSize(size);
  return {std::move(font), color};
}

struct Faces {
  std::array<Font, 4> text;  // by Style, but for code
  Font display;
  Font code;
};

// The styles of a TrueType family are one font that changes, the standard faces fonts of their own.
Faces FindFaces(folivar::PDFDocument& document, const Typeface& typeface) {
  Faces faces;
  auto& [upright, italic, bold, boldItalic] = faces.text;
  upright = AddUpright(document, typeface, "Times-Roman");
  if (typeface.family.empty()) {
    italic = document.Fonts()->Add("Times-Italic");
    bold = document.Fonts()->Add("Times-Bold");
    boldItalic = document.Fonts()->Add("Times-BoldItalic");
    faces.display = document.Fonts()->Add("Helvetica-Bold");
  } else {
    italic = upright->Clone();
    italic->SetItalic(true);
    bold = upright->Clone();
    bold->SetBold(true);
    boldItalic = bold->Clone();
    boldItalic->SetItalic(true);
    faces.display = bold;
  }
  faces.code = document.Fonts()->Add("Courier");
  return faces;
}

}  // namespace

BookStyle::BookStyle(folivar::PDFDocument& document, const Typeface& typeface) {
  const Faces faces = FindFaces(document, typeface);
  const Font& upright = faces.text.front();
  for (std::size_t style = 0; style < faces.text.size(); ++style) {
    text[style] = Styled(faces.text[style], 10, kInk);
  }
  text.back() = Styled(faces.code, 8.8F, kInk);
  link = Styled(upright, 10, kTeal);
  code = Styled(faces.code, 7.9F, kInk);
  title = Styled(faces.display, 54, kWhite);
  subtitle = Styled(upright, 15, kPale);
  chapterNumber = Styled(faces.display, 40, kOchre);
  headings = {Styled(faces.display, 24, kTeal), Styled(faces.display, 13, kTeal),
              Styled(faces.display, 10.5F, kTeal)};
  contentsLines = {Styled(faces.display, 9.5F, kTeal), Styled(upright, 10, kInk),
                   Styled(upright, 9.5F, kQuietInk)};
  head = Styled(upright, 8.5F, kQuietInk);
  pageNumber = Styled(upright, 9, kQuietInk);
}
