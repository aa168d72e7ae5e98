#include "folivar/textbox/MeasuredFormat.h"

#include "folivar/fonts/PDFFont.h"

namespace folivar {

MeasuredFormat::MeasuredFormat(const TEXT_FORMAT_RANGE& run, std::size_t number)
    : font_(&*run.Font), number_(number), color_(run.Color) {
  const FontMetrics metrics(*font_);
  face_ = &metrics.Face();
  characters_ = &face_->Characters();
  size_ = metrics.EffectiveSize();
  leading_ = metrics.Leading();
  isRaisedOrLowered_ = metrics.IsRaisedOrLowered();
  isDecorated_ = font_->Underline() || font_->StrikeOut();
}

}  // namespace folivar
