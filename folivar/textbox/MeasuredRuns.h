#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "folivar/textbox/MeasuredFormat.h"
#include "folivar/textbox/PDFParaAlignment.h"
#include "folivar/textbox/RunList.h"

namespace folivar {

// A run that has text.
struct MeasuredRun {
  std::size_t end;  // of its part of the text
  std::uint32_t format;
  PDFParaAlignment alignment;
};

// The runs of a text, which is given as its bytes in the file: those without text are left out, the
// last one has all that is left of the text, and what is beyond its end does not count.
class MeasuredRuns {
 public:
  MeasuredRuns(std::string_view text, const RunList& runs);

  using Iterator = std::vector<MeasuredRun>::const_iterator;
  Iterator begin() const { return runs_.begin(); }

  // Most runs share one; two may be alike.
  const std::vector<MeasuredFormat>& Formats() const { return formats_; }
  const MeasuredFormat& FormatOf(const MeasuredRun& run) const { return formats_[run.format]; }

 private:
  std::size_t FormatOf(const TEXT_FORMAT_RANGE& run);

  std::vector<MeasuredRun> runs_;
  std::vector<MeasuredFormat> formats_;
};

}  // namespace folivar
