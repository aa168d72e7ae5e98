#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "folivar/base/Object.h"
#include "folivar/base/Text.h"
#include "folivar/base/Warnings.h"
#include "folivar/file/ObjectWriter.h"
#include "folivar/fonts/CharacterTable.h"
#include "folivar/fonts/PDFFontType.h"
#include "folivar/fonts/SystemFonts.h"

namespace folivar {

// The record of one face in one document, shared by every PDFFont that uses it and owned by the
// font collection. All measures are thousandths of the em; PDFFont scales them to its size.
class PDFFontInfo final : public Object, public ObjectWriter {
 public:
  float m_CapHeight = 0;
  float m_ItalicAngle = 0;
  float m_Ascender = 0;
  float m_Descender = 0;  // below the baseline: negative
  PDFFontType m_FontType = fontType1;
  bool m_EmbedFont = false;
  bool m_Embeddable = false;
  std::string m_PDFName;  // the resource name, its slash included: "/F0"
  Text m_FontFace;
  float m_StrikeoutPosition = 0;
  float m_StrikeoutSize = 0;
  float m_UnderlinePosition = 0;
  float m_UnderlineSize = 0;
  // The same for every face; deliberately not taken from any font file.
  float m_SubscriptPosition = -100;
  float m_SubscriptSize = 650;
  float m_SuperscriptPosition = 350;
  float m_SuperscriptSize = 650;
  bool m_IsSymbolic = false;
  bool m_IsItalic = false;
  bool m_IsBold = false;

  // Becomes one of the fourteen, by its place in their list.
  void LoadStandardMetrics(std::size_t face);

  // Becomes the TrueType face that the system selected for `faceName`, which may be another.
  // m_IsBold, m_IsItalic and m_EmbedFont say what is wanted; m_EmbedFont is cleared, with a
  // warning, for a font that forbids it.
  void LoadTrueTypeMetrics(const Text& faceName, SystemFace& face, Warnings& warnings);

  float FontBoxLeft() const { return boxLeft_; }
  float FontBoxBottom() const { return boxBottom_; }
  float FontBoxRight() const { return boxRight_; }
  float FontBoxTop() const { return boxTop_; }

  // By the byte that stands for a character in the file.
  const CharacterTable& Characters() const { return *characters_; }

  // Measuring takes text as the bytes that go into the file (AnsiText).
  float MeasureWidth(std::string_view bytes) const;
  // From the lowest to the highest point of the glyphs, the baseline included.
  float MeasureHeight(std::string_view bytes) const;
  // The height of the face's box.
  float MeasureHeight() const { return boxTop_ - boxBottom_; }
  void MeasureExtents(std::string_view bytes, float& width, float& height) const;

  // The name in "/BaseFont", which is also the face's key in the collection: for a TrueType face
  // without its blanks and with its style, "TimesNewRoman,Bold".
  Text BaseFontName() const;

  // As numbered by the save in progress.
  std::int32_t ObjectNumber() const { return objectNumber_; }

  void NumberObjects(ObjectNumbers& numbers) override;
  void WriteObjects(SaveFile& file) override;

 private:
  void WriteStandardFace(SaveFile& file) const;
  void WriteTrueTypeFace(SaveFile& file) const;
  void WriteFontDescriptor(SaveFile& file) const;
  void WriteFontProgram(SaveFile& file) const;

  const CharacterMetrics& Metrics(char byte) const {
    return (*characters_)[static_cast<unsigned char>(byte)];
  }

  float boxLeft_ = 0;
  float boxBottom_ = 0;
  float boxRight_ = 0;
  float boxTop_ = 0;
  // A standard face's are the process's own, a TrueType face's this record's.
  const CharacterTable* characters_ = nullptr;
  std::unique_ptr<const CharacterTable> ownCharacters_;
  std::uint16_t firstCharacter_ = 0;
  std::uint16_t lastCharacter_ = 0;
  std::shared_ptr<const std::string> program_;  // null: not embedded
  std::int32_t objectNumber_ = 0;
};

// Whether the font allows it, by its table "OS/2".
bool IsEmbeddable(SystemFace& face);

// The key of a TrueType face in a style.
Text TrueTypeBaseFontName(const Text& faceName, bool isBold, bool isItalic);

}  // namespace folivar
