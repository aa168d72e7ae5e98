#include "folivar/fonts/FontMetrics.h"

#include "folivar/base/Internal.h"
#include "folivar/base/Numbers.h"

namespace folivar {
namespace {

const PDFFontInfo& FaceOf(const PDFFont& font) { return *font.FontInfo(Internal()); }

}  // namespace

FontMetrics::FontMetrics(const PDFFont& font) : font_(font), face_(FaceOf(font)) {}

void FontMetrics::RaiseBeyondASingle(const PDFFontInfo& face, float size) {
  RaiseBeyondSingle("a measure at size " + DigitsOf(size), "font '" + face.m_FontFace.Utf8() + "'");
}

float FontMetrics::EffectiveSize(float size) const {
  if (font_.Subscript()) return Scaled(face_.m_SubscriptSize, size);
  if (font_.Superscript()) return Scaled(face_.m_SuperscriptSize, size);
  return size;
}

float FontMetrics::Rise() const {
  if (font_.Subscript()) return SubscriptPositionPts();
  if (font_.Superscript()) return SuperscriptPositionPts();
  return 0;
}

bool IsSameFormat(const PDFFont& a, const PDFFont& b) {
  return a.Size() == b.Size() && a.Underline() == b.Underline() && a.StrikeOut() == b.StrikeOut() &&
         a.Subscript() == b.Subscript() && a.Superscript() == b.Superscript() &&
         (&FaceOf(a) == &FaceOf(b) || FaceOf(a).m_PDFName == FaceOf(b).m_PDFName);
}

}  // namespace folivar
