#include "folivar/fonts/PDFFontInfo.h"

#include "folivar/document/AnsiText.h"
#include "folivar/document/Global.h"
#include "folivar/document/ObjectNumbers.h"
#include "folivar/document/SaveFile.h"
#include "folivar/fonts/StandardFaces.h"

namespace folivar {

void PDFFontInfo::LoadStandardMetrics(std::size_t face) {
  const AfmMetrics& metrics = StandardFaceMetrics(face);
  m_FontFace = Text(StandardFaceName(face));
  m_CapHeight = metrics.capHeight;
  m_Ascender = metrics.ascender;
  m_Descender = metrics.descender;
  boxLeft_ = metrics.boxLeft;
  boxBottom_ = metrics.boxBottom;
  boxRight_ = metrics.boxRight;
  boxTop_ = metrics.boxTop;
  m_UnderlinePosition = metrics.underlinePosition;
  m_StrikeoutPosition = m_Ascender / 3;
  m_StrikeoutSize = metrics.underlineThickness;
  m_UnderlineSize = metrics.underlineThickness;
  characters_ = &metrics.characters;
}

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

void PDFFontInfo::MeasureExtents(std::string_view bytes, float& width, float& height) const {
  width = MeasureWidth(bytes);
  height = MeasureHeight(bytes);
}

void PDFFontInfo::NumberObjects(ObjectNumbers& numbers) { objectNumber_ = numbers.Take(); }

//   4 0 obj
//   << /Type /Font
//   /Subtype /Type1
//   /Name /F0
//   /BaseFont /Helvetica
//   >>
//   endobj
void PDFFontInfo::WriteObjects(SaveFile& file) {
  const Text name = BaseFontName();
  file.BeginObject(objectNumber_)
      .Append("<< /Type /Font\n/Subtype /Type1\n/Name ", std::string_view(m_PDFName),
              "\n/BaseFont /", AnsiText(name).Bytes(), "\n>>\n");
  file.EndObject();
}

}  // namespace folivar
