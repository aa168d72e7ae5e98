#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "folivar/fonts/CharacterTable.h"
#include "folivar/fonts/FontMetrics.h"
#include "folivar/fonts/PDFFontInfo.h"
#include "folivar/textbox/RunList.h"

namespace folivar {

// A run that has text, with the measures of its font that laying out asks for again and again.
// Measures that are beyond a single raise 6 when the runs are taken down.
class LaidRun {
 public:
  LaidRun(const TEXT_FORMAT_RANGE& run, std::size_t end);

  // Where its text ends.
  std::size_t End() const { return end_; }
  const TEXT_FORMAT_RANGE& Run() const { return *run_; }
  FontMetrics Metrics() const { return FontMetrics(*run_->Font); }
  float Leading() const { return leading_; }
  bool IsDecorated() const { return isDecorated_; }

  // The width of one character as the sums that Shown takes have it: thousandths of the em.
  float Width(char byte) const { return (*characters_)[static_cast<unsigned char>(byte)].width; }
  // Such a sum at the size that is shown; raises 6 when it is beyond a single.
  float Shown(float width) const { return FontMetrics::Scaled(width, size_); }

  // Of text in the run, as it is shown; raises 6 when it is beyond a single.
  float Width(std::string_view bytes) const {
    return FontMetrics::Scaled(face_->MeasureWidth(bytes), size_);
  }

 private:
  const TEXT_FORMAT_RANGE* run_;
  const PDFFontInfo* face_;
  const CharacterTable* characters_;
  std::size_t end_;
  float size_;  // that text is shown in
  float leading_;
  bool isDecorated_;
};

// The runs of a text of `textLength` characters: those without text are left out, the last one has
// all that is left of the text, and what is beyond its end does not count.
std::vector<LaidRun> LaidRunsOf(const RunList& runs, std::size_t textLength);

}  // namespace folivar
