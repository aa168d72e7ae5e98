#pragma once

#include <cstdint>

#include "folivar/textbox/PDFParaAlignment.h"
#include "folivar/textbox/RunFont.h"

namespace folivar {

// A stretch of a text box's text in one format.
struct TEXT_FORMAT_RANGE {
  [[no_unique_address]] RunFont Font;  // whose padding the other fields fill
  std::int32_t Color = 0;              // 0x00BBGGRR
  PDFParaAlignment Alignment = alignLeft;
  std::int32_t Length = 0;  // UTF-16 units; never negative

  // The same format and length, with a font of its own.
  void CopyFrom(const TEXT_FORMAT_RANGE& source);

  // Whether text in both looks the same; lengths do not count.
  bool IsFormatEquivalent(const TEXT_FORMAT_RANGE& other) const;
};

}  // namespace folivar
