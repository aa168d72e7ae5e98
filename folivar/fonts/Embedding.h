#pragma once

namespace folivar {

// Whether a TrueType font's file goes into the PDF.
enum class Embedding { kNone, kEmbed };

}  // namespace folivar
