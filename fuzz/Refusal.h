#pragma once

#include <cstdlib>
#include <string_view>

#include "folivar/base/Error.h"

namespace folivar::fuzz {

// Whether `read` refuses what it reads. The one way to do so is to raise 321 with a text that names
// the file; any other is a finding.
template <typename Read>
bool IsRefused(std::string_view fileName, const Read& read) {
  try {
    read();
    return false;
  } catch (const Error& error) {
    const bool namesFile = std::string_view(error.what()).find(fileName) != std::string_view::npos;
    if (error.Number() != Error::kInvalidFileFormat || !namesFile) std::abort();
    return true;
  }
}

}  // namespace folivar::fuzz
