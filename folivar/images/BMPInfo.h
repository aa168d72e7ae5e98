#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "folivar/images/ImageReader.h"

namespace folivar {

// Reads Windows bitmaps: uncompressed ones of 1, 4, 8 or 24 bits a pixel with a header of 40 bytes,
// stored from the bottom up. Writes their samples as they are, from the top down and without
// padding; pixels of 24 bits as red, green, blue.
//
// Deliberate: pictures of one bit are black and white, 0 being black, whatever their palette says.
// Those of 4 and 8 bits have their palette, unless every entry i is the grey (i, i, i): then they
// are grey, also a picture of 4 bits, whose greys so become 17 times as light.
class BMPInfo final : public ImageReader {
 public:
  // Never false. Raises -2147220504, "Unknown BMP format", for any other kind of bitmap, and for
  // headers that are not sound: a width or height of 0 or below, sizes beyond 2^31 - 1 bytes, a
  // palette of more than 256 colours, palette or pixels outside the file.
  bool LoadImageInfo(ImageFile& file) override;

  std::int32_t Width() const override { return width_; }
  std::int32_t Height() const override { return height_; }
  std::int16_t BitsPerComponent() const override { return bitsPerComponent_; }
  std::string_view ColorSpace() const override { return colorSpace_; }

  std::int32_t ImageStreamSize() const override { return size_; }
  void WriteImageStream(ImageFile& file, ByteSink& out) const override;

 private:
  std::int32_t width_ = 0;
  std::int32_t height_ = 0;
  std::int16_t bitsPerComponent_ = 0;
  std::string colorSpace_;
  std::int32_t size_ = 0;        // of the image data
  std::size_t rowLength_ = 0;    // bytes, without padding
  std::size_t rowDistance_ = 0;  // bytes from row to row in the file
  std::uint32_t firstRow_ = 0;   // where the bottom row stands in the file
  bool isBlueFirst_ = false;
};

}  // namespace folivar
