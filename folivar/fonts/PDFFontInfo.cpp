#include "folivar/fonts/PDFFontInfo.h"

#include "folivar/document/Global.h"

namespace folivar {

// A standard face's name has no blanks, and no style beside it.
Text PDFFontInfo::BaseFontName() const { return BaseFontNameOf(m_FontFace, m_IsBold, m_IsItalic); }

float PDFFontInfo::MeasureWidth(std::string_view bytes) const {
  float width = 0;
  for (const char byte : bytes) width += Metrics(byte).width;
  return width;
}

float PDFFontInfo::MeasureHeight(std::string_view bytes) const {
  float top = 0;
  float bottom = 0;
  for (const char byte : bytes) {
    top = MaxOf(top, Metrics(byte).top);
    bottom = MinOf(bottom, Metrics(byte).bottom);
  }
  return top - bottom;
}

TextExtents PDFFontInfo::MeasureExtents(std::string_view bytes) const {
  return {MeasureWidth(bytes), MeasureHeight(bytes)};
}

Text BaseFontNameOf(const Text& faceName, bool isBold, bool isItalic) {
  std::u16string name = faceName.Utf16();
  std::erase(name, u' ');
  if (isBold && isItalic) {
    name += u",BoldItalic";
  } else if (isBold) {
    name += u",Bold";
  } else if (isItalic) {
    name += u",Italic";
  }
  return Text(name);
}

}  // namespace folivar
