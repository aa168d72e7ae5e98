#pragma once

#include <cstdint>
#include <memory>

#include "folivar/textbox/PDFParaAlignment.h"

namespace folivar {

class PDFFont;

// A stretch of a text box's text in one format.
struct TEXT_FORMAT_RANGE {
  std::shared_ptr<PDFFont> Font;  // never null; shared where the host has set one font for several
  std::int32_t Color = 0;         // 0x00BBGGRR
  PDFParaAlignment Alignment = alignLeft;
  std::int32_t Length = 0;  // UTF-16 units; never negative

  // The same format and length, with a font of its own.
  void CopyFrom(const TEXT_FORMAT_RANGE& source);

  // Whether text in both looks the same; lengths do not count.
  bool IsFormatEquivalent(const TEXT_FORMAT_RANGE& other) const;
};

}  // namespace folivar
