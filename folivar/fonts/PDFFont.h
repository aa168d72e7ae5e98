#pragma once

#include <memory>
#include <optional>

#include "folivar/base/Api.h"
#include "folivar/base/Object.h"
#include "folivar/base/Text.h"
#include "folivar/fonts/PDFFontType.h"
#include "folivar/fonts/TextExtents.h"

namespace folivar {

class Internal;
class PDFFontInfo;
class PDFFonts;

// A face at a size, with decorations; made by PDFFonts::Add or by Clone. Pages and templates
// refer to the font object: what is changed here shows in the text drawn from then on.
//
// Measures are in points, computed in single precision; one that is beyond a single raises 6. Text
// is measured as it goes into the file: a character outside Windows code page 1252 as "?".
class FOLIVAR_API PDFFont final : public Object {
 public:
  // A font of its own with the same face, size and decorations.
  std::shared_ptr<PDFFont> Clone() const;

  // Points; 10 at first. Any value is taken, 0 and negative ones too.
  float Size() const { return size_; }
  void SetSize(float points) { size_ = points; }

  // The face's name: "Helvetica-Bold".
  Text FontFace() const;
  PDFFontType FontType() const;

  // Width and height of a text as drawn with the decorations of this font. Deliberate: for sub- and
  // superscript the rise, in points, is added to the height in thousandths before that is scaled.
  TextExtents GetTextExtents(TextView text) const;
  float TextWidth(TextView text) const;
  // From the lowest to the highest point of the text's glyphs, the baseline included; without a
  // text the height of the face's box.
  float TextHeight(std::optional<TextView> text = std::nullopt) const;

  // Of the face at Size(), whatever the decorations. The descender is below the baseline: negative.
  float Ascender() const;
  float Descender() const;
  // From line to line: the height of the face's box.
  float Leading() const;
  float FontBoxTop() const;
  float FontBoxLeft() const;
  float FontBoxRight() const;
  float FontBoxBottom() const;

  // The face's style. A TrueType font changes to the face of the new style: that of the document,
  // or one that is added to it, which may raise what PDFFonts::Add raises. Setting a style back to
  // false changes the font only when the document has the face without it. The standard faces are
  // separate faces by name ("Times-Bold"), for which these read false and setting them changes
  // nothing.
  bool Italic() const;
  void SetItalic(bool italic);
  bool Bold() const;
  void SetBold(bool bold);

  // All false at first. Text marked as both is subscript.
  bool StrikeOut() const { return strikeOut_; }
  void SetStrikeOut(bool strikeOut) { strikeOut_ = strikeOut; }
  bool Underline() const { return underline_; }
  void SetUnderline(bool underline) { underline_ = underline; }
  bool Subscript() const { return subscript_; }
  void SetSubscript(bool subscript) { subscript_ = subscript; }
  bool Superscript() const { return superscript_; }
  void SetSuperscript(bool superscript) { superscript_ = superscript; }

  // For the library

  PDFFont(const Internal&, std::shared_ptr<const PDFFontInfo> face, std::weak_ptr<PDFFonts> owner);

  // The face's record.
  const std::shared_ptr<const PDFFontInfo>& FontInfo(const Internal&) const { return face_; }
  // The collection that the record belongs to.
  const std::weak_ptr<PDFFonts>& Owner(const Internal&) const { return owner_; }

 private:
  void ChangeStyle(bool isBold, bool isItalic, bool isWanted);

  std::shared_ptr<const PDFFontInfo> face_;
  float size_ = 10;
  bool underline_ = false;
  bool strikeOut_ = false;
  bool subscript_ = false;
  bool superscript_ = false;
  std::weak_ptr<PDFFonts> owner_;
};

}  // namespace folivar
