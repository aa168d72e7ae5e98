#pragma once

#include <cmath>

#include "folivar/fonts/PDFFont.h"
#include "folivar/fonts/PDFFontInfo.h"

namespace folivar {

// A font's measures in points, for drawing and layout: the face's thousandths of the em scaled by a
// size, value * size / 1000 in single precision. Lives no longer than the font.
class FontMetrics {
 public:
  explicit FontMetrics(const PDFFont& font);

  const PDFFontInfo& Face() const { return face_; }

  // Raises 6, which names the face, when the product is beyond a single.
  float Scaled(float thousandths) const { return Scaled(thousandths, font_.Size()); }
  float Scaled(float thousandths, float size) const { return Scaled(face_, thousandths, size); }
  static float Scaled(const PDFFontInfo& face, float thousandths, float size) {
    const float product = thousandths * size;
    if (!std::isfinite(product)) RaiseBeyondASingle(face, size);
    return product / 1000;
  }

  float Ascender() const { return Scaled(face_.m_Ascender); }
  float Descender() const { return Scaled(face_.m_Descender); }
  // From line to line: the height of the face's box.
  float Leading() const { return Scaled(face_.MeasureHeight()); }

  bool IsRaisedOrLowered() const { return font_.Subscript() || font_.Superscript(); }
  // The size that text is shown in: smaller for sub- and superscript. Subscript wins over
  // superscript.
  float EffectiveSize() const { return EffectiveSize(font_.Size()); }
  // The same for a font of another size.
  float EffectiveSize(float size) const;
  // How far text is shown above the baseline; below for subscript.
  float Rise() const;

  float StrikeoutPositionPts() const { return Scaled(face_.m_StrikeoutPosition); }
  float StrikeoutSizePts() const { return Scaled(face_.m_StrikeoutSize); }
  float UnderlinePositionPts() const { return Scaled(face_.m_UnderlinePosition); }
  float UnderlineSizePts() const { return Scaled(face_.m_UnderlineSize); }
  float SubscriptPositionPts() const { return Scaled(face_.m_SubscriptPosition); }
  float SubscriptSizePts() const { return Scaled(face_.m_SubscriptSize); }
  float SuperscriptPositionPts() const { return Scaled(face_.m_SuperscriptPosition); }
  float SuperscriptSizePts() const { return Scaled(face_.m_SuperscriptSize); }

 private:
  [[noreturn]] static void RaiseBeyondASingle(const PDFFontInfo& face, float size);

  const PDFFont& font_;
  const PDFFontInfo& face_;
};

// Whether text in both fonts looks the same: equal size and flags, the same face.
bool IsSameFormat(const PDFFont& a, const PDFFont& b);

}  // namespace folivar
