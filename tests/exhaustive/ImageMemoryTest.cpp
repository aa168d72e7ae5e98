#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "folivar/folivar.h"
#include "tests/support/BmpFile.h"
#include "tests/support/TestFiles.h"

// Images are copied piece by piece: however large a picture is, its save takes little memory.

namespace folivar::test {
namespace {

constexpr std::size_t kAllowed = std::size_t{8} << 20;

// A line of the process's state, in bytes: "VmRSS" is the memory in use, "VmHWM" its peak.
std::size_t Memory(std::string_view line) {
  std::ifstream status("/proc/self/status");
  std::string word;
  while (status >> word) {
    if (word != std::string(line) + ":") continue;
    std::size_t kilobytes = 0;
    status >> kilobytes;
    return kilobytes * 1024;
  }
  throw std::runtime_error("the system does not tell " + std::string(line));
}

void ForgetThePeak() {
  std::ofstream file("/proc/self/clear_refs");
  file << 5 << std::flush;
  if (!file) throw std::runtime_error("the system does not forget the peak");
}

// By how much the memory in use rises, at its peak, while `action` runs.
template <class Action>
std::size_t RiseDuring(Action action) {
  ForgetThePeak();
  const std::size_t before = Memory("VmRSS");
  action();
  return Memory("VmHWM") - before;
}

// Saves a document with this picture, which reaches up to `size` with zeros.
void ExpectLittleMemoryFor(std::string_view name, std::string_view head, std::uintmax_t size) {
  const auto picture = OutputPath(name);
  WriteBytes(picture, head);
  std::filesystem::resize_file(picture, size);
  const auto document = PDFDocument::Create();
  const auto image = document->Images()->Add();
  const auto output = OutputPath("large");
  EXPECT_LE(RiseDuring([&] {
              image->SetFileName(picture.u8string());
              document->Pages()->Add()->DrawImage(image, 0, 0, 612, 792);
              document->SavePDFFile(output.u8string());
            }),
            kAllowed);
  EXPECT_GT(std::filesystem::file_size(output), size - 100'000);
  std::filesystem::remove(picture);
  std::filesystem::remove(output);
}

TEST(ImageMemory, IsMeasured) {
  std::string bytes;
  EXPECT_GT(RiseDuring([&] { bytes.assign(2 * kAllowed, 'x'); }), kAllowed);
  EXPECT_EQ(bytes.back(), 'x');
}

TEST(ImageMemory, BmpOf200MegabytesTakesAtMost8) {
  ExpectLittleMemoryFor("square.bmp", BmpFile{.width = 8192, .height = 8192}.Bytes(),
                        54 + 8192 * 8192 * 3);
}

// One row is as long as the whole file.
TEST(ImageMemory, BmpOfOneRowOf200MegabytesTakesAtMost8) {
  ExpectLittleMemoryFor("row.bmp", BmpFile{.width = 67'108'864, .height = 1}.Bytes(),
                        54 + 67'108'864 * 3);
}

TEST(ImageMemory, JpegOf200MegabytesTakesAtMost8) {
  ExpectLittleMemoryFor("long.jpg", std::string_view("\xFF\xC0\0\x11\x8\0\2\0\3\3", 10),
                        200'000'000);
}

}  // namespace
}  // namespace folivar::test
