#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/Pixels.h"

namespace folivar::test {

// The first page as one program draws it.
struct Picture {
  std::string program;
  Pixels pixels;
};

// The first page as MuPDF, poppler and Ghostscript draw it, always in this order: "mutool",
// "pdftoppm" and "gs". Expects them to have nothing to say.
std::vector<Picture> PicturesOf(const std::filesystem::path& pdf, int dotsPerInch);

}  // namespace folivar::test
