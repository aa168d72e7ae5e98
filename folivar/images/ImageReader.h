#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace folivar {

class ByteSink;
class ImageFile;

// What to do with a picture of another kind, for error texts.
inline constexpr std::string_view kReadablePictures =
    "JPEG and uncompressed BMP files can be read: convert it to one of them";

// Role of what knows one format of image files. A reader is made for one file: it inspects the file
// once, and then writes the image's data as often as the document is saved. It does not keep the
// file open. (A further format is a class with this role, and its line in PDFImage.cpp.)
class ImageReader {
 public:
  virtual ~ImageReader() = default;
  ImageReader(const ImageReader&) = delete;
  ImageReader& operator=(const ImageReader&) = delete;

  // Inspects the file and returns whether it is of the reader's format. Only after true do the
  // other members tell anything. A format may have errors of its own.
  virtual bool LoadImageInfo(ImageFile& file) = 0;

  // Pixels.
  virtual std::int32_t Width() const = 0;
  virtual std::int32_t Height() const = 0;

  virtual std::int16_t BitsPerComponent() const = 0;
  // "/DeviceRGB", or any other colour space as it is to be written.
  virtual std::string_view ColorSpace() const = 0;

  // How many bytes WriteImageStream writes.
  virtual std::int32_t ImageStreamSize() const = 0;
  // Writes exactly that many, in pieces of at most kImagePiece bytes. Raises 62 for a file that has
  // become shorter.
  virtual void WriteImageStream(ImageFile& file, ByteSink& out) const = 0;

 protected:
  ImageReader() = default;
};

// Image data are copied through a buffer of this size, however large the image is. A multiple of
// three: a piece never ends within a pixel of three bytes.
inline constexpr std::size_t kImagePiece = std::size_t{96} * 1024;

}  // namespace folivar
