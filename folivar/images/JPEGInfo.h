#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "folivar/images/ImageReader.h"

namespace folivar {

// Reads JPEG files: finds the picture's size and passes the whole file on as it is. It decodes
// nothing.
//
// Deliberate: every picture is declared as 8 bits of red, green and blue, a grey one and one of
// four components too.
class JPEGInfo final : public ImageReader {
 public:
  // How many bytes are read at most in search of the frame header, in pieces of 4096; segments are
  // skipped unread. Files made to keep us reading for hours have none within that; the longest
  // header that a camera could write, a thousand full segments of 64 KB, takes a sixteenth of it.
  static constexpr std::size_t kLongestSearch = std::size_t{64} * 1024 * 1024;

  // True when there is a frame header. Raises 6 for a width or height of 32768 or more, and for a
  // file longer than 2^31 - 1 bytes.
  //
  // Deliberate: any marker from 0xC0 to 0xCB counts as that of the frame header, also 0xC4, which
  // begins Huffman tables, and 0xC8.
  bool LoadImageInfo(ImageFile& file) override;

  std::int32_t Width() const override { return width_; }
  std::int32_t Height() const override { return height_; }
  std::int16_t BitsPerComponent() const override { return 8; }
  std::string_view ColorSpace() const override { return "/DeviceRGB"; }

  // The length of the file.
  std::int32_t ImageStreamSize() const override { return fileLength_; }
  void WriteImageStream(ImageFile& file, ByteSink& out) const override;

 private:
  std::int16_t width_ = 0;
  std::int16_t height_ = 0;
  std::int32_t fileLength_ = 0;
};

}  // namespace folivar
