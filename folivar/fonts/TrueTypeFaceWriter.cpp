#include "folivar/fonts/TrueTypeFaceWriter.h"

#include <cstdint>
#include <string_view>
#include <utility>

#include "folivar/base/AnsiText.h"
#include "folivar/file/ObjectNumbers.h"
#include "folivar/file/SaveFile.h"

namespace folivar {

TrueTypeFaceWriter::TrueTypeFaceWriter(std::shared_ptr<PDFFontInfo> face)
    : face_(std::move(face)) {}

void TrueTypeFaceWriter::NumberObjects(ObjectNumbers& numbers) {
  face_->SetObjectNumber(numbers.Take());
  descriptor_ = numbers.Take();
  if (face_->Program()) programFile_ = numbers.Take();
}

void TrueTypeFaceWriter::WriteObjects(SaveFile& file) {
  WriteFont(file);
  WriteFontDescriptor(file);
  if (face_->Program()) WriteFontProgram(file);
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
void TrueTypeFaceWriter::WriteFont(SaveFile& file) const {
  const Text name = face_->BaseFontName();
  PDFText& text = file.BeginObject(face_->ObjectNumber());
  text.Append("<< /Type /Font\n/Subtype /TrueType\n/Name ", std::string_view(face_->m_PDFName),
              "\n/BaseFont /", Name{AnsiText(name).Bytes()}, "\n/FirstChar ",
              face_->FirstCharacter(), "\n/LastChar ", face_->LastCharacter(), "\n/Widths [ ");
  for (std::uint32_t code = face_->FirstCharacter(); code <= face_->LastCharacter(); ++code) {
    text.Append(Real{face_->Characters()[code].width});
  }
  text.Append(" ]\n/FontDescriptor ", descriptor_, "\n");
  if (!face_->m_IsSymbolic) text.Append("/Encoding /WinAnsiEncoding\n");
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
void TrueTypeFaceWriter::WriteFontDescriptor(SaveFile& file) const {
  constexpr int kSymbolicFlag = 4;
  constexpr int kNonsymbolicFlag = 32;
  constexpr int kItalicFlag = 64;
  const int flags = (face_->m_IsSymbolic ? kSymbolicFlag : kNonsymbolicFlag) +
                    (face_->m_IsItalic ? kItalicFlag : 0);
  const Text name = face_->BaseFontName();
  PDFText& text = file.BeginObject(descriptor_);
  text.Append("<<\n/Type /FontDescriptor\n/FontName /", Name{AnsiText(name).Bytes()},
              "\n/FontBBox [ ", Real{face_->FontBoxLeft()}, Real{face_->FontBoxBottom()},
              Real{face_->FontBoxRight()}, Real{face_->FontBoxTop()}, " ]\n/Ascent ",
              Real{face_->m_Ascender}, "\n/Descent ", Real{face_->m_Descender}, "\n/CapHeight ",
              Real{face_->m_CapHeight}, "\n/ItalicAngle ", Real{face_->m_ItalicAngle}, "\n/Flags ",
              flags, "\n/StemV 70\n");
  if (face_->Program()) text.Append("/FontFile2 ", programFile_, "\n");
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
void TrueTypeFaceWriter::WriteFontProgram(SaveFile& file) const {
  const std::string& program = *face_->Program();
  const auto length = static_cast<std::uint32_t>(program.size());
  file.BeginObject(programFile_).Append("<<\n/Length ", length, "\n/Length1 ", length, "\n");
  file.WriteStream(StreamKind::kData, length, [&](ByteSink& out) { out.Write(program); });
  file.EndObject();
}

}  // namespace folivar
