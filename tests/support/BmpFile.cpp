#include "tests/support/BmpFile.h"

#include "tests/support/TestFiles.h"

namespace folivar::test {
namespace {

std::string LittleEndian(std::uint32_t number, int size) {
  std::string bytes;
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(number >> (8 * i));
  return bytes;
}

}  // namespace

std::string BmpFile::Bytes() const {
  const auto start = static_cast<std::uint32_t>(54 + palette.size() + gap.size());
  std::string bytes = "BM" + LittleEndian(start + static_cast<std::uint32_t>(pixels.size()), 4) +
                      LittleEndian(0, 4) + LittleEndian(offset.value_or(start), 4);
  bytes += LittleEndian(headerSize, 4) + LittleEndian(static_cast<std::uint32_t>(width), 4) +
           LittleEndian(static_cast<std::uint32_t>(height), 4) + LittleEndian(1, 2) +
           LittleEndian(bits, 2) + LittleEndian(compression, 4) +
           LittleEndian(static_cast<std::uint32_t>(pixels.size()), 4) + LittleEndian(2835, 4) +
           LittleEndian(2835, 4) + LittleEndian(colorsUsed, 4) + LittleEndian(colorsUsed, 4);
  return bytes + palette + gap + pixels;
}

std::string PaletteEntry(std::uint32_t rgb) { return LittleEndian(rgb, 4); }

std::filesystem::path WriteBlankBmp(std::string_view name, std::int32_t width,
                                    std::int32_t height) {
  BmpFile file{.width = width, .height = height, .bits = 1};
  file.palette = PaletteEntry(0) + PaletteEntry(0xFFFFFF);
  file.pixels.assign(
      static_cast<std::size_t>((width + 31) / 32 * 4) * static_cast<std::size_t>(height), '\xFF');
  const std::filesystem::path path = OutputPath(name);
  WriteBytes(path, file.Bytes());
  return path;
}

}  // namespace folivar::test
