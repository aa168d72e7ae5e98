#include "tests/support/Pixels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <ostream>
#include <stdexcept>

#include "tests/support/TestFiles.h"
#include "tests/support/Tools.h"

namespace folivar::test {
namespace {

// The words of a portable file's header.
class Header {
 public:
  explicit Header(std::string_view bytes) : bytes_(bytes) {}

  std::string_view NextWord() {
    for (;;) {
      while (IsBlank()) ++position_;
      if (Byte() != '#') break;
      while (Byte() != '\n') ++position_;
    }
    const std::size_t start = position_;
    while (!IsBlank()) ++position_;
    return bytes_.substr(start, position_ - start);
  }

  std::size_t NextNumber() { return std::stoul(std::string(NextWord())); }

  // What follows the one blank behind the last word.
  std::string_view Rest() const { return bytes_.substr(position_ + 1); }

 private:
  char Byte() const {
    if (position_ >= bytes_.size()) throw std::runtime_error("a portable picture is cut short");
    return bytes_[position_];
  }
  bool IsBlank() const { return std::isspace(static_cast<unsigned char>(Byte())) != 0; }

  std::string_view bytes_;
  std::size_t position_ = 0;
};

std::vector<std::filesystem::path> Extracted(const std::filesystem::path& pdf,
                                             std::vector<std::string> command) {
  const std::filesystem::path folder = OutputPath("embedded");
  std::filesystem::create_directory(folder);
  command.insert(command.end(), {pdf, folder / "picture"});
  const ToolResult result = Run(command);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out + result.err, "");
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const Pixels& pixels) {
  return out << pixels.width << "x" << pixels.height << " pixels";
}

Pixels ReadPnm(std::string_view bytes) {
  Header header(bytes);
  const std::string_view kind = header.NextWord();
  if (kind != "P4" && kind != "P5" && kind != "P6") {
    throw std::runtime_error("not a portable picture: " + std::string(kind));
  }
  Pixels pixels{header.NextNumber(), header.NextNumber()};
  if (kind != "P4" && header.NextNumber() != 255) {
    throw std::runtime_error("a portable picture of other than 8 bits");
  }
  const std::string_view samples = header.Rest();
  const std::size_t bits = kind == "P4" ? 1 : kind == "P5" ? 8 : 24;
  const std::size_t row = (pixels.width * bits + 7) / 8;
  if (samples.size() != row * pixels.height) {
    throw std::runtime_error("a portable picture of the wrong length");
  }
  if (bits == 24) {
    pixels.rgb = samples;
    return pixels;
  }
  for (std::size_t y = 0; y < pixels.height; ++y) {
    for (std::size_t x = 0; x < pixels.width; ++x) {
      if (bits == 8) {
        pixels.rgb.append(3, samples[y * row + x]);
      } else {
        const bool isBlack = (samples[y * row + x / 8] >> (7 - x % 8) & 1) != 0;
        pixels.rgb.append(3, isBlack ? '\0' : '\xFF');
      }
    }
  }
  return pixels;
}

std::string PpmOf(const Pixels& pixels) {
  return "P6\n" + std::to_string(pixels.width) + " " + std::to_string(pixels.height) + "\n255\n" +
         pixels.rgb;
}

Pixels Reduced(const Pixels& pixels, std::size_t side) {
  Pixels reduced{pixels.width / side, pixels.height / side};
  const std::size_t row = 3 * reduced.width;
  for (std::size_t y = 0; y < reduced.height; ++y) {
    std::vector<std::size_t> sums(row);
    for (std::size_t line = y * side; line < (y + 1) * side; ++line) {
      const std::string_view bytes = std::string_view(pixels.rgb).substr(3 * line * pixels.width);
      for (std::size_t i = 0; i < row * side; ++i) {
        sums[i / (3 * side) * 3 + i % 3] += static_cast<unsigned char>(bytes[i]);
      }
    }
    for (const std::size_t sum : sums) reduced.rgb += static_cast<char>(sum / (side * side));
  }
  return reduced;
}

int LargestDifference(const Pixels& a, const Pixels& b) {
  if (a.width != b.width || a.height != b.height) return 256;
  int largest = 0;
  for (std::size_t i = 0; i < a.rgb.size(); ++i) {
    const int difference =
        static_cast<unsigned char>(a.rgb[i]) - static_cast<unsigned char>(b.rgb[i]);
    largest = std::max(largest, std::abs(difference));
  }
  return largest;
}

std::vector<Pixels> EmbeddedPixels(const std::filesystem::path& pdf) {
  std::vector<Pixels> pictures;
  for (const auto& file : Extracted(pdf, {"pdfimages"})) {
    pictures.push_back(ReadPnm(ReadBytes(file)));
  }
  return pictures;
}

std::vector<std::string> EmbeddedFiles(const std::filesystem::path& pdf) {
  std::vector<std::string> files;
  for (const auto& file : Extracted(pdf, {"pdfimages", "-all"})) files.push_back(ReadBytes(file));
  return files;
}

}  // namespace folivar::test
