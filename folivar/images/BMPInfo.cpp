#include "folivar/images/BMPInfo.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <memory>
#include <span>
#include <utility>

#include "folivar/base/Error.h"
#include "folivar/base/HexDigits.h"
#include "folivar/document/Global.h"
#include "folivar/file/ByteSink.h"
#include "folivar/images/ImageFile.h"

namespace folivar {
namespace {

constexpr std::size_t kFileHeader = 14;
constexpr std::size_t kInfoHeader = 40;
constexpr std::size_t kHeaders = kFileHeader + kInfoHeader;
constexpr std::size_t kPaletteEntry = 4;  // blue, green, red and a byte without meaning
constexpr std::size_t kLargestPalette = 256;

[[noreturn]] void Refuse(const std::string& reason, const ImageFile& file) {
  throw Error::UnknownImageType("Unknown BMP format", reason + ", in " + file.Name())
      .WithObject(file.Name());
}

// Of what may be a sound bitmap that others can read.
[[noreturn]] void RefuseKind(const std::string& kind, const ImageFile& file) {
  throw Error::UnknownImageType(
      "Unknown BMP format", kind + ", in " + file.Name() + "; " + std::string(kReadablePictures))
      .WithObject(file.Name());
}

std::uint8_t Byte(char byte) { return static_cast<std::uint8_t>(byte); }
std::uint16_t Word(const char* bytes) {
  return static_cast<std::uint16_t>(Byte(bytes[0]) + Byte(bytes[1]) * 256);
}
std::uint32_t LongWord(const char* bytes) {
  return Word(bytes) + std::uint32_t{Word(bytes + 2)} * 65536;
}

// The fields that count; their names are the format's.
struct Headers {
  std::uint32_t bfOffBits;
  std::uint32_t biSize;
  std::int32_t biWidth;
  std::int32_t biHeight;
  std::uint16_t biBitCount;
  std::uint32_t biCompression;
  std::uint32_t biClrUsed;
};

Headers ReadHeaders(ImageFile& file) {
  std::array<char, kHeaders> bytes;
  if (file.Read(0, bytes) != bytes.size()) Refuse("the headers are cut short", file);
  const char* info = bytes.data() + kFileHeader;
  return {LongWord(bytes.data() + 10),
          LongWord(info),
          static_cast<std::int32_t>(LongWord(info + 4)),
          static_cast<std::int32_t>(LongWord(info + 8)),
          Word(info + 14),
          LongWord(info + 16),
          LongWord(info + 32)};
}

void CheckKind(const Headers& headers, const ImageFile& file) {
  if (headers.biSize != kInfoHeader) {
    RefuseKind("an information header of " + std::to_string(headers.biSize) + " bytes", file);
  }
  if (headers.biCompression != 0) {
    RefuseKind("compression " + std::to_string(headers.biCompression), file);
  }
  const std::uint16_t bits = headers.biBitCount;
  if (bits != 1 && bits != 4 && bits != 8 && bits != 24) {
    RefuseKind(std::to_string(bits) + " bits a pixel", file);
  }
  if (headers.biWidth <= 0 || headers.biHeight <= 0) {
    RefuseKind(
        std::to_string(headers.biWidth) + " by " + std::to_string(headers.biHeight) + " pixels",
        file);
  }
}

// The number of entries, which stand in the file.
std::size_t PaletteLength(const Headers& headers, const ImageFile& file) {
  const bool isIndexed = headers.biBitCount < 16;
  std::size_t length = headers.biClrUsed;
  if (isIndexed && length == 0) length = std::size_t{1} << headers.biBitCount;
  if ((isIndexed && length > kLargestPalette) ||
      length > (file.Size() - kHeaders) / kPaletteEntry) {
    Refuse("a palette of " + std::to_string(length) + " colours", file);
  }
  return length;
}

bool IsGreyRamp(std::span<const char> palette) {
  for (std::size_t i = 0; i < palette.size(); ++i) {
    if (i % kPaletteEntry != 3 && Byte(palette[i]) != i / kPaletteEntry) return false;
  }
  return true;
}

//   [/Indexed /DeviceRGB 1
//   <000000FFFFFF> ]
std::string IndexedColorSpace(std::span<const char> palette) {
  std::string text =
      "[/Indexed /DeviceRGB " + std::to_string(palette.size() / kPaletteEntry - 1) + "\n<";
  text.reserve(text.size() + palette.size() / kPaletteEntry * 6 + 3);
  for (std::size_t entry = 0; entry < palette.size(); entry += kPaletteEntry) {
    for (const std::size_t component : {2U, 1U, 0U}) {
      const std::uint8_t byte = Byte(palette[entry + component]);
      text += kHexDigits[byte >> 4];
      text += kHexDigits[byte & 0xF];
    }
  }
  return text + "> ]";
}

std::string ColorSpaceOf(const Headers& headers, ImageFile& file) {
  const std::size_t length = PaletteLength(headers, file);
  if (headers.biBitCount == 24) return "/DeviceRGB";
  if (headers.biBitCount == 1) return "/DeviceGray";
  std::array<char, kLargestPalette * kPaletteEntry> bytes;
  const std::span<char> palette(bytes.data(), length * kPaletteEntry);
  file.ReadAgain(kHeaders, palette);
  return IsGreyRamp(palette) ? "/DeviceGray" : IndexedColorSpace(palette);
}

void CopySwapped(const char* from, std::size_t size, char* to) {
  for (std::size_t i = 0; i < size; i += 3) {
    to[i] = from[i + 2];
    to[i + 1] = from[i + 1];
    to[i + 2] = from[i];
  }
}

}  // namespace

bool BMPInfo::LoadImageInfo(ImageFile& file) {
  const Headers headers = ReadHeaders(file);
  CheckKind(headers, file);
  std::string colorSpace = ColorSpaceOf(headers, file);

  const std::int64_t rowLength = CeilDiv(std::int64_t{headers.biWidth} * headers.biBitCount, 8);
  if (rowLength > std::numeric_limits<std::int32_t>::max() / headers.biHeight) {
    Refuse("more than 2147483647 bytes of pixels", file);
  }
  const std::int64_t rowDistance = CeilDiv(rowLength, 4) * 4;
  // The padding of the last row may be missing: it is not read.
  const std::int64_t end = headers.bfOffBits + rowDistance * (headers.biHeight - 1) + rowLength;
  if (static_cast<std::uint64_t>(end) > file.Size()) {
    Refuse("the pixels reach beyond the end", file);
  }

  width_ = headers.biWidth;
  height_ = headers.biHeight;
  isBlueFirst_ = headers.biBitCount == 24;
  bitsPerComponent_ = static_cast<std::int16_t>(isBlueFirst_ ? 8 : headers.biBitCount);
  colorSpace_ = std::move(colorSpace);
  size_ = static_cast<std::int32_t>(rowLength * headers.biHeight);
  rowLength_ = static_cast<std::size_t>(rowLength);
  rowDistance_ = static_cast<std::size_t>(rowDistance);
  firstRow_ = headers.bfOffBits;
  return true;
}

// Several rows at a time, or one in several pieces.
void BMPInfo::WriteImageStream(ImageFile& file, ByteSink& out) const {
  const auto height = static_cast<std::size_t>(height_);
  const std::size_t rowsAtOnce = std::clamp<std::size_t>(kImagePiece / rowDistance_, 1, height);
  const std::size_t width = std::min(rowLength_, kImagePiece);
  const std::size_t largest = (rowsAtOnce - 1) * rowDistance_ + width;
  const auto from = std::make_unique_for_overwrite<char[]>(largest);
  const auto to = std::make_unique_for_overwrite<char[]>(largest);

  for (std::size_t top = 0; top < height; top += rowsAtOnce) {
    const std::size_t rows = std::min(rowsAtOnce, height - top);
    const std::uint64_t lowest = firstRow_ + std::uint64_t{height - top - rows} * rowDistance_;
    for (std::size_t left = 0; left < rowLength_; left += width) {
      const std::size_t length = std::min(width, rowLength_ - left);
      file.ReadAgain(lowest + left, {from.get(), (rows - 1) * rowDistance_ + length});
      for (std::size_t row = 0; row < rows; ++row) {
        const char* source = from.get() + (rows - 1 - row) * rowDistance_;
        char* target = to.get() + row * length;
        if (isBlueFirst_) {
          CopySwapped(source, length, target);
        } else {
          std::memcpy(target, source, length);
        }
      }
      out.Write({to.get(), rows * length});
    }
  }
}

}  // namespace folivar
