#pragma once

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace folivar::test {

// A metrics file of a standard face, read with regular expressions: what the library must find in
// it, by other means than the library's.
struct AfmFile {
  struct Glyph {
    float width;
    std::array<float, 4> box;  // left, bottom, right, top
  };

  // By the first word of the line: {"CapHeight", {718}}; lines whose other words are all numbers.
  std::map<std::string, std::vector<float>> header;
  // The encoded glyphs, by code.
  std::map<int, Glyph> glyphs;
};

// `face` is a face's name: "Helvetica".
AfmFile ReadAfmFile(std::string_view face);

// The file's bytes.
std::string AfmBytes(std::string_view face);

// The fourteen names in the order in which the library lists them.
inline constexpr std::array<std::string_view, 14> kStandardFaces = {
    "Courier",     "Courier-Bold",   "Courier-BoldOblique",   "Courier-Oblique",
    "Helvetica",   "Helvetica-Bold", "Helvetica-BoldOblique", "Helvetica-Oblique",
    "Symbol",      "Times-Bold",     "Times-BoldItalic",      "Times-Italic",
    "Times-Roman", "ZapfDingbats"};

// For tests that run once for each face: "TimesRoman" for "Times-Roman".
std::string FaceTestName(const testing::TestParamInfo<std::string_view>& face);

}  // namespace folivar::test
