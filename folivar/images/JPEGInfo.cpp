#include "folivar/images/JPEGInfo.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <memory>
#include <span>
#include <string>

#include "folivar/base/BigEndian.h"
#include "folivar/base/Error.h"
#include "folivar/file/ByteSink.h"
#include "folivar/images/ImageFile.h"

namespace folivar {
namespace {

constexpr std::uint8_t kMarker = 0xFF;
constexpr std::uint8_t kStartOfImage = 0xD8;
constexpr std::uint8_t kFirstFrameHeader = 0xC0;
constexpr std::uint8_t kLastFrameHeader = 0xCB;
constexpr std::size_t kShortestSegment = 2;  // its length counts itself
constexpr std::size_t kPiece = 4096;
constexpr std::size_t kMostPieces = JPEGInfo::kLongestSearch / kPiece;

// A walk over a file from its front, read in pieces.
class Walk {
 public:
  explicit Walk(ImageFile& file) : file_(file) {}

  // The next bytes, valid until the next call; none when the file ends before, or the search.
  std::span<const unsigned char> Take(std::size_t count) {
    if (position_ + count > start_ + size_) {
      if (++pieces_ > kMostPieces) return {};
      start_ = position_;
      size_ = file_.Read(start_, {reinterpret_cast<char*>(piece_.data()), piece_.size()});
      if (size_ < count) return {};
    }
    const std::span bytes(piece_.data() + (position_ - start_), count);
    position_ += count;
    return bytes;
  }

  void Skip(std::size_t count) { position_ += count; }

 private:
  ImageFile& file_;
  std::array<unsigned char, kPiece> piece_;
  std::size_t pieces_ = 0;   // that were read
  std::uint64_t start_ = 0;  // of the piece in the file
  std::size_t size_ = 0;
  std::uint64_t position_ = 0;
};

std::int16_t Pixels(std::uint16_t number, const char* what, const ImageFile& file) {
  if (number > std::numeric_limits<std::int16_t>::max()) {
    throw Error::Overflow("a " + std::string(what) + " of " + std::to_string(number) +
                          " pixels does not fit into 16 bits")
        .WithObject(file.Name());
  }
  return static_cast<std::int16_t>(number);
}

struct Frame {
  std::int16_t height = 0;
  std::int16_t width = 0;
};

//   FF D8            start of image
//   FF E0  00 10 ... a segment of 16 bytes, its length included
//   FF C0  00 11  08  00 02  00 03 ...  the frame header: length, precision, height, width
// False when there is no frame header as far as is searched, or what comes before it is cut short
// or has no length.
bool FindFrame(ImageFile& file, Frame& frame) {
  Walk walk(file);
  for (auto marker = walk.Take(2); !marker.empty(); marker = walk.Take(2)) {
    const std::uint8_t code = marker[1];
    if (marker[0] != kMarker || code == kStartOfImage) continue;
    if (code >= kFirstFrameHeader && code <= kLastFrameHeader) {
      const auto header = walk.Take(7);
      if (header.empty() || U16At(header, 0) < kShortestSegment) return false;
      frame.height = Pixels(U16At(header, 3), "height", file);
      frame.width = Pixels(U16At(header, 5), "width", file);
      return true;
    }
    const auto length = walk.Take(2);
    if (length.empty() || U16At(length, 0) < kShortestSegment) return false;
    walk.Skip(U16At(length, 0) - kShortestSegment);
  }
  return false;
}

}  // namespace

bool JPEGInfo::LoadImageInfo(ImageFile& file) {
  Frame frame;
  if (!FindFrame(file, frame)) return false;
  if (file.Size() > std::numeric_limits<std::int32_t>::max()) {
    throw Error::Overflow("is longer than 2147483647 bytes").WithObject(file.Name());
  }
  width_ = frame.width;
  height_ = frame.height;
  fileLength_ = static_cast<std::int32_t>(file.Size());
  return true;
}

void JPEGInfo::WriteImageStream(ImageFile& file, ByteSink& out) const {
  const auto length = static_cast<std::size_t>(fileLength_);
  const std::size_t capacity = std::min(length, kImagePiece);
  const auto piece = std::make_unique_for_overwrite<char[]>(capacity);
  for (std::size_t offset = 0; offset < length; offset += capacity) {
    const std::size_t size = std::min(capacity, length - offset);
    file.ReadAgain(offset, {piece.get(), size});
    out.Write({piece.get(), size});
  }
}

}  // namespace folivar
