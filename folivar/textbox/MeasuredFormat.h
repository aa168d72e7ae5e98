#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "folivar/fonts/CharacterTable.h"
#include "folivar/fonts/FontMetrics.h"
#include "folivar/fonts/PDFFontInfo.h"
#include "folivar/textbox/TEXT_FORMAT_RANGE.h"

namespace folivar {

// The format of some runs, with the measures of its font that laying out asks for again and again.
// Measures that are beyond a single raise 6 when they are taken down.
class MeasuredFormat {
 public:
  MeasuredFormat(const TEXT_FORMAT_RANGE& run, std::size_t number);

  // Its place among the formats of the text, from 0.
  std::size_t Number() const { return number_; }
  const PDFFont& Font() const { return *font_; }
  std::int32_t Color() const { return color_; }
  bool IsOf(const TEXT_FORMAT_RANGE& run) const {
    return font_ == &*run.Font && color_ == run.Color;
  }

  FontMetrics Metrics() const { return FontMetrics(*font_); }
  float Leading() const { return leading_; }
  bool IsDecorated() const { return isDecorated_; }
  bool IsRaisedOrLowered() const { return isRaisedOrLowered_; }

  // The width of one character as the sums that Shown takes have it: thousandths of the em.
  float Width(char byte) const { return (*characters_)[static_cast<unsigned char>(byte)].width; }
  // Such a sum at the size that is shown; raises 6 when it is beyond a single.
  float Shown(float width) const { return FontMetrics::Scaled(*face_, width, size_); }

  // Of text, as it is shown; raises 6 when it is beyond a single.
  float Width(std::string_view bytes) const { return Shown(face_->MeasureWidth(bytes)); }

 private:
  const PDFFont* font_;
  const PDFFontInfo* face_;
  const CharacterTable* characters_;
  std::size_t number_;
  std::int32_t color_;
  float size_;  // that text is shown in
  float leading_;
  bool isDecorated_;
  bool isRaisedOrLowered_;
};

}  // namespace folivar
