#include "folivar/textbox/TEXT_FORMAT_RANGE.h"

#include "folivar/fonts/FontMetrics.h"

namespace folivar {

void TEXT_FORMAT_RANGE::CopyFrom(const TEXT_FORMAT_RANGE& source) {
  Font = source.Font.Clone();
  Color = source.Color;
  Alignment = source.Alignment;
  Length = source.Length;
}

bool TEXT_FORMAT_RANGE::IsFormatEquivalent(const TEXT_FORMAT_RANGE& other) const {
  return Color == other.Color && Alignment == other.Alignment && IsSameFormat(*Font, *other.Font);
}

}  // namespace folivar
