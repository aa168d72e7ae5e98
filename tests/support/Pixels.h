#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace folivar::test {

// A picture by its pixels: red, green and blue of 8 bits each, in rows from the top.
struct Pixels {
  std::size_t width = 0;
  std::size_t height = 0;
  std::string rgb = {};

  // The three bytes of one pixel.
  std::string_view At(std::size_t x, std::size_t y) const {
    return std::string_view(rgb).substr(3 * (y * width + x), 3);
  }

  friend bool operator==(const Pixels&, const Pixels&) = default;
};

// "3x2 pixels", for messages.
std::ostream& operator<<(std::ostream& out, const Pixels& pixels);

// The picture in a file of the portable formats PBM, PGM and PPM, in their binary forms of up to 8
// bits. Throws std::runtime_error for anything else.
Pixels ReadPnm(std::string_view bytes);

// The picture as a PPM file.
std::string PpmOf(const Pixels& pixels);

// With one pixel for each square of so many by so many: their mean, rounded down. Squares that are
// not whole are left out.
Pixels Reduced(const Pixels& pixels, std::size_t side);

// The largest difference of any byte; 256 for pictures of different sizes.
int LargestDifference(const Pixels& a, const Pixels& b);

// The pictures in a PDF file, in the order of its pages, decoded by poppler.
std::vector<Pixels> EmbeddedPixels(const std::filesystem::path& pdf);

// The streams of the pictures in a PDF file as poppler takes them out: those that are files of
// their own, such as JPEG files, byte by byte.
std::vector<std::string> EmbeddedFiles(const std::filesystem::path& pdf);

}  // namespace folivar::test
