#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "folivar/base/Text.h"
#include "folivar/file/Reference.h"
#include "folivar/fonts/CharacterTable.h"
#include "folivar/fonts/FontBox.h"
#include "folivar/fonts/PDFFontType.h"
#include "folivar/fonts/TextExtents.h"

namespace folivar {

// The record of one face in one document, shared by every PDFFont that uses it and owned by the
// font collection. It is filled once, by LoadStandardMetrics or LoadTrueTypeMetrics, gets its
// resource name from the collection, and then stays as it is. All measures are thousandths of the
// em; PDFFont scales them to its size.
class PDFFontInfo final {
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

  // What the record keeps to itself.
  struct Private {
    FontBox box;
    std::shared_ptr<const CharacterTable> characters;
    // For TrueType faces only.
    std::uint16_t firstCharacter = 0;
    std::uint16_t lastCharacter = 0;
    std::shared_ptr<const std::string> program;  // null: not embedded
    Text fileName;                               // empty: not known
  };
  explicit PDFFontInfo(Private own) : own_(std::move(own)) {}

  float FontBoxLeft() const { return own_.box.left; }
  float FontBoxBottom() const { return own_.box.bottom; }
  float FontBoxRight() const { return own_.box.right; }
  float FontBoxTop() const { return own_.box.top; }

  // By the byte that stands for a character in the file.
  const CharacterTable& Characters() const { return *own_.characters; }

  std::uint16_t FirstCharacter() const { return own_.firstCharacter; }
  std::uint16_t LastCharacter() const { return own_.lastCharacter; }
  const std::shared_ptr<const std::string>& Program() const { return own_.program; }
  const Text& FileName() const { return own_.fileName; }

  // Measuring takes text as the bytes that go into the file (AnsiText).
  float MeasureWidth(std::string_view bytes) const;
  // From the lowest to the highest point of the glyphs, the baseline included.
  float MeasureHeight(std::string_view bytes) const;
  // The height of the face's box.
  float MeasureHeight() const { return own_.box.top - own_.box.bottom; }
  TextExtents MeasureExtents(std::string_view bytes) const;

  // The name in "/BaseFont", which is also the face's key in the collection: for a TrueType face
  // without its blanks and with its style, "TimesNewRoman,Bold".
  Text BaseFontName() const;

  // As numbered by the save in progress.
  Reference ObjectNumber() const { return object_; }
  void SetObjectNumber(Reference object) { object_ = object; }

 private:
  const CharacterMetrics& Metrics(char byte) const {
    return (*own_.characters)[static_cast<unsigned char>(byte)];
  }

  Private own_;
  Reference object_;
};

// The name in "/BaseFont" of a face in a style.
Text BaseFontNameOf(const Text& faceName, bool isBold, bool isItalic);

}  // namespace folivar
