#include "folivar/fonts/FontMetrics.h"

#include <cmath>
#include <string>

#include "folivar/fonts/FaceUser.h"

namespace folivar {
namespace {

const PDFFontInfo& FaceOf(const FaceUser& user) { return *user.FontInfo(); }

}  // namespace

FontMetrics::FontMetrics(const PDFFont& font) : font_(font), face_(FaceOf(font)) {}

float FontMetrics::Scaled(float thousandths, float size) {
  const float product = thousandths * size;
  if (!std::isfinite(product)) {
    throw Error::Overflow("a measure of the font at size " + std::to_string(size) +
                          " is beyond a single");
  }
  return product / 1000;
}

float FontMetrics::EffectiveSize() const {
  if (font_.Subscript()) return SubscriptSizePts();
  if (font_.Superscript()) return SuperscriptSizePts();
  return font_.Size();
}

float FontMetrics::Rise() const {
  if (font_.Subscript()) return SubscriptPositionPts();
  if (font_.Superscript()) return SuperscriptPositionPts();
  return 0;
}

bool IsSameFormat(const PDFFont& a, const PDFFont& b) {
  return a.Size() == b.Size() && a.Underline() == b.Underline() && a.StrikeOut() == b.StrikeOut() &&
         a.Subscript() == b.Subscript() && a.Superscript() == b.Superscript() &&
         FaceOf(a).m_PDFName == FaceOf(b).m_PDFName;
}

}  // namespace folivar
