#pragma once

#include <string>

#include "folivar/base/Text.h"

namespace folivar {

// What errors call a member of a collection: "PDFPage 'cover'" or "PDFPage without a key".
inline std::string KeyedName(const char* kind, const Text& key) {
  return kind + (key.IsEmpty() ? " without a key" : " '" + key.Utf8() + "'");
}

}  // namespace folivar
