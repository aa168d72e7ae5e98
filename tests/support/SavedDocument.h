#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "folivar/folivar.h"
#include "tests/support/StrictPdf.h"

namespace folivar::test {

struct SavedDocument {
  std::filesystem::path path;
  std::string bytes;
  StrictPdf pdf;
};

enum class Check {
  kForm,          // by StrictPdf
  kFormAndTools,  // and by ExpectSound, which takes some tenths of a second
};

// Saves the document to OutputPath(name) and checks the file.
SavedDocument Save(PDFDocument& document, std::string_view name,
                   Check check = Check::kFormAndTools);

}  // namespace folivar::test
