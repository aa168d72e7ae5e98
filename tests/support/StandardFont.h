#pragma once

#include <memory>
#include <string_view>

#include "folivar/fonts/PDFFont.h"

namespace folivar::test {

// A font of a standard face that belongs to no document. `pdfName` is the face's resource name.
std::shared_ptr<PDFFont> StandardFont(std::string_view face = "Helvetica", float size = 10,
                                      std::string_view pdfName = "/F0");

}  // namespace folivar::test
