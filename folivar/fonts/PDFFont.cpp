#include "folivar/fonts/PDFFont.h"

#include <utility>

#include "folivar/base/AnsiText.h"
#include "folivar/base/Error.h"
#include "folivar/base/InMember.h"
#include "folivar/base/Internal.h"
#include "folivar/fonts/FontMetrics.h"
#include "folivar/fonts/PDFFontInfo.h"
#include "folivar/fonts/PDFFonts.h"

namespace folivar {

PDFFont::PDFFont(const Internal&, std::shared_ptr<const PDFFontInfo> face,
                 std::weak_ptr<PDFFonts> owner)
    : face_(std::move(face)), owner_(std::move(owner)) {}

std::shared_ptr<PDFFont> PDFFont::Clone() const {
  auto clone = std::make_shared<PDFFont>(Internal(), face_, owner_);
  clone->size_ = size_;
  clone->underline_ = underline_;
  clone->strikeOut_ = strikeOut_;
  clone->subscript_ = subscript_;
  clone->superscript_ = superscript_;
  return clone;
}

Text PDFFont::FontFace() const { return face_->m_FontFace; }
PDFFontType PDFFont::FontType() const { return face_->m_FontType; }

TextExtents PDFFont::GetTextExtents(TextView text) const {
  return InMember("PDFFont.GetTextExtents", [&] {
    const TextExtents raw = face_->MeasureExtents(AnsiText(text).Bytes());
    const FontMetrics metrics(*this);
    const float size = metrics.EffectiveSize();
    return TextExtents{metrics.Scaled(raw.width, size),
                       metrics.Scaled(metrics.Rise() + raw.height, size)};
  });
}

float PDFFont::TextWidth(TextView text) const {
  return InMember("PDFFont.TextWidth", [&] {
    const AnsiText ansi(text);
    const FontMetrics metrics(*this);
    return metrics.Scaled(face_->MeasureWidth(ansi.Bytes()), metrics.EffectiveSize());
  });
}

float PDFFont::TextHeight(std::optional<TextView> text) const {
  return InMember("PDFFont.TextHeight", [&] {
    const float height =
        text ? face_->MeasureHeight(AnsiText(*text).Bytes()) : face_->MeasureHeight();
    const FontMetrics metrics(*this);
    return metrics.Scaled(height + metrics.Rise(), metrics.EffectiveSize());
  });
}

float PDFFont::Ascender() const {
  return InMember("PDFFont.Ascender", [&] { return FontMetrics(*this).Ascender(); });
}
float PDFFont::Descender() const {
  return InMember("PDFFont.Descender", [&] { return FontMetrics(*this).Descender(); });
}
float PDFFont::Leading() const {
  return InMember("PDFFont.Leading", [&] { return FontMetrics(*this).Leading(); });
}
float PDFFont::FontBoxTop() const {
  return InMember("PDFFont.FontBoxTop",
                  [&] { return FontMetrics(*this).Scaled(face_->FontBoxTop()); });
}
float PDFFont::FontBoxLeft() const {
  return InMember("PDFFont.FontBoxLeft",
                  [&] { return FontMetrics(*this).Scaled(face_->FontBoxLeft()); });
}
float PDFFont::FontBoxRight() const {
  return InMember("PDFFont.FontBoxRight",
                  [&] { return FontMetrics(*this).Scaled(face_->FontBoxRight()); });
}
float PDFFont::FontBoxBottom() const {
  return InMember("PDFFont.FontBoxBottom",
                  [&] { return FontMetrics(*this).Scaled(face_->FontBoxBottom()); });
}

bool PDFFont::Italic() const { return face_->m_IsItalic; }
bool PDFFont::Bold() const { return face_->m_IsBold; }

void PDFFont::SetItalic(bool italic) {
  InMember("PDFFont.Italic", [&] { ChangeStyle(face_->m_IsBold, italic, italic); });
}

void PDFFont::SetBold(bool bold) {
  InMember("PDFFont.Bold", [&] { ChangeStyle(bold, face_->m_IsItalic, bold); });
}

void PDFFont::ChangeStyle(bool isBold, bool isItalic, bool isWanted) {
  // No standard face is another one's style, so there is nothing to change to.
  if (face_->m_FontType == fontType1) return;
  const std::shared_ptr<PDFFonts> fonts = owner_.lock();
  if (!fonts) throw Error::ObjectNotSet("the font's document is gone");
  auto face = fonts->StyledFace(Internal(), *face_, isBold, isItalic,
                                isWanted ? PDFFonts::IfAbsent::kMake : PDFFonts::IfAbsent::kLeave);
  if (face) face_ = std::move(face);
}

}  // namespace folivar
