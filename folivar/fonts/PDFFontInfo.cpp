#include "folivar/fonts/PDFFontInfo.h"

#include <array>
#include <utility>

#include "folivar/base/AnsiText.h"
#include "folivar/base/CaseFold.h"
#include "folivar/document/Global.h"
#include "folivar/file/ObjectNumbers.h"
#include "folivar/file/SaveFile.h"
#include "folivar/fonts/FontTables.h"
#include "folivar/fonts/StandardFaces.h"

namespace folivar {
namespace {

// In thousandths of the em, truncated toward zero.
float BoxSide(std::int16_t units, std::uint16_t unitsPerEm) {
  if (unitsPerEm == 0) return 0;
  const int thousandths = units * 1000 / unitsPerEm;
  return static_cast<float>(thousandths);
}

}  // namespace

bool IsEmbeddable(SystemFace& face) { return TableOf<OS2Table>(face).MayEmbed(); }

Text TrueTypeBaseFontName(const Text& faceName, bool isBold, bool isItalic) {
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

void PDFFontInfo::LoadTrueTypeMetrics(const Text& faceName, SystemFace& face, Warnings& warnings) {
  m_FontType = fontTrueType;
  m_FontFace = face.Name();
  if (CompareIgnoringCase(m_FontFace, faceName) != 0) {
    warnings.Show(Text("WARNING: Font '" + faceName.Utf8() + "' could not be found.  Using '" +
                       m_FontFace.Utf8() + "' instead."));
  }

  const auto os2 = TableOf<OS2Table>(face);
  m_Embeddable = os2.MayEmbed();
  if (m_EmbedFont && m_Embeddable) {
    program_ = face.Program();
    if (program_ && program_->empty()) program_ = nullptr;
    m_EmbedFont = program_ != nullptr;
  } else if (m_EmbedFont) {
    warnings.Show(Text("WARNING: Font " + m_FontFace.Utf8() +
                       " is not licensed for embedding.  The font will not be embedded in the PDF "
                       "file."));
    m_EmbedFont = false;
  }

  const SystemFace::TextMetrics metrics = face.Metrics();
  m_Ascender = static_cast<float>(metrics.ascent);
  m_Descender = -static_cast<float>(metrics.descent);
  constexpr std::uint16_t kLastCode = 255;
  firstCharacter_ = MinOf(metrics.firstCharacter, kLastCode);
  lastCharacter_ = MinOf(metrics.lastCharacter, kLastCode);

  std::array<std::int32_t, 256> widths = face.Widths();
  // Deliberate: line feed and form feed have no width, a carriage return keeps its own.
  widths[10] = 0;
  widths[12] = 0;
  auto characters = std::make_unique<CharacterTable>();
  for (std::size_t code = 0; code < widths.size(); ++code) {
    (*characters)[code].width = static_cast<float>(widths[code]);
  }
  characters_ = characters.get();
  ownCharacters_ = std::move(characters);

  const auto head = TableOf<HeadTable>(face);
  boxLeft_ = BoxSide(head.XMin(), head.UnitsPerEm());
  boxBottom_ = BoxSide(head.YMin(), head.UnitsPerEm());
  boxRight_ = BoxSide(head.XMax(), head.UnitsPerEm());
  boxTop_ = BoxSide(head.YMax(), head.UnitsPerEm());

  // Deliberate: this and the thickness of the lines stay in the font's own units.
  m_CapHeight = TableOf<PCLTTable>(face).CapHeight();
  m_ItalicAngle = 0;
  m_StrikeoutSize = os2.StrikeoutSize();
  m_UnderlineSize = m_StrikeoutSize;
  m_StrikeoutPosition = m_Ascender / 3;
  m_UnderlinePosition = m_Descender / 2;
  m_IsSymbolic = os2.IsSymbolic();
}

Text PDFFontInfo::BaseFontName() const {
  return m_FontType == fontTrueType ? TrueTypeBaseFontName(m_FontFace, m_IsBold, m_IsItalic)
                                    : m_FontFace;
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

void PDFFontInfo::NumberObjects(ObjectNumbers& numbers) {
  objectNumber_ = numbers.Take();
  if (m_FontType == fontTrueType) numbers.Take();
  if (program_) numbers.Take();
}

void PDFFontInfo::WriteObjects(SaveFile& file) {
  if (m_FontType == fontType1) {
    WriteStandardFace(file);
    return;
  }
  WriteTrueTypeFace(file);
  WriteFontDescriptor(file);
  if (program_) WriteFontProgram(file);
}

//   4 0 obj
//   << /Type /Font
//   /Subtype /Type1
//   /Name /F0
//   /BaseFont /Helvetica
//   >>
//   endobj
void PDFFontInfo::WriteStandardFace(SaveFile& file) const {
  const Text name = BaseFontName();
  file.BeginObject(objectNumber_)
      .Append("<< /Type /Font\n/Subtype /Type1\n/Name ", std::string_view(m_PDFName),
              "\n/BaseFont /", AnsiText(name).Bytes(), "\n>>\n");
  file.EndObject();
}

//   5 0 obj
//   << /Type /Font
//   /Subtype /TrueType
//   /Name /F1
//   /BaseFont /LiberationSans,Bold
//   /FirstChar 31
//   /LastChar 255
//   /Widths [ 365 278 278 333 ... 556  ]
//   /FontDescriptor 6 0 R
//   /Encoding /WinAnsiEncoding
//   >>
//   endobj
void PDFFontInfo::WriteTrueTypeFace(SaveFile& file) const {
  const Text name = BaseFontName();
  PDFText& text = file.BeginObject(objectNumber_);
  text.Append("<< /Type /Font\n/Subtype /TrueType\n/Name ", std::string_view(m_PDFName),
              "\n/BaseFont /", Name{AnsiText(name).Bytes()}, "\n/FirstChar ", firstCharacter_,
              "\n/LastChar ", lastCharacter_, "\n/Widths [ ");
  for (std::uint32_t code = firstCharacter_; code <= lastCharacter_; ++code) {
    text.Append(Real{(*characters_)[code].width});
  }
  text.Append(" ]\n/FontDescriptor ", Reference{objectNumber_ + 1}, "\n");
  if (!m_IsSymbolic) text.Append("/Encoding /WinAnsiEncoding\n");
  text.Append(">>\n");
  file.EndObject();
}

//   6 0 obj
//   <<
//   /Type /FontDescriptor
//   /FontName /LiberationSans,Bold
//   /FontBBox [ -184 -303 1062 1033  ]
//   /Ascent 905 (and a blank, like the next three)
//   /Descent -212
//   /CapHeight 0
//   /ItalicAngle 0
//   /Flags 32
//   /StemV 70
//   /FontFile2 7 0 R
//   >>
//   endobj
void PDFFontInfo::WriteFontDescriptor(SaveFile& file) const {
  constexpr int kSymbolicFlag = 4;
  constexpr int kNonsymbolicFlag = 32;
  constexpr int kItalicFlag = 64;
  const int flags =
      (m_IsSymbolic ? kSymbolicFlag : kNonsymbolicFlag) + (m_IsItalic ? kItalicFlag : 0);
  const Text name = BaseFontName();
  PDFText& text = file.BeginObject(objectNumber_ + 1);
  text.Append("<<\n/Type /FontDescriptor\n/FontName /", Name{AnsiText(name).Bytes()},
              "\n/FontBBox [ ", Real{boxLeft_}, Real{boxBottom_}, Real{boxRight_}, Real{boxTop_},
              " ]\n/Ascent ", Real{m_Ascender}, "\n/Descent ", Real{m_Descender}, "\n/CapHeight ",
              Real{m_CapHeight}, "\n/ItalicAngle ", Real{m_ItalicAngle}, "\n/Flags ", flags,
              "\n/StemV 70\n");
  if (program_) text.Append("/FontFile2 ", Reference{objectNumber_ + 2}, "\n");
  text.Append(">>\n");
  file.EndObject();
}

//   7 0 obj
//   <<
//   /Length 137052
//   /Length1 137052
//   >>
//   stream
//   ...
//   endstream
//   endobj
void PDFFontInfo::WriteFontProgram(SaveFile& file) const {
  PDFText& text = file.BeginObject(objectNumber_ + 2);
  const auto length = static_cast<std::uint32_t>(program_->size());
  text.Append("<<\n/Length ", length, "\n/Length1 ", length, "\n>>\nstream\n");
  file.AppendBytes(*program_);
  text.Append("\nendstream\n");
  file.EndObject();
}

}  // namespace folivar
