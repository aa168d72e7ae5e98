#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "folivar/base/Error.h"
#include "folivar/images/ImageFile.h"
#include "folivar/images/JPEGInfo.h"
#include "tests/support/Content.h"
#include "tests/support/MemorySink.h"
#include "tests/support/MemorySource.h"

namespace folivar::test {
namespace {

std::string BigEndian(std::size_t number) {
  return {static_cast<char>(number >> 8), static_cast<char>(number)};
}

std::string Marker(int code) { return {'\xFF', static_cast<char>(code)}; }

// A segment with the length that is due.
std::string Segment(int code, std::string_view content) {
  return Marker(code) + BigEndian(content.size() + 2) + std::string(content);
}

std::string Frame(int code, std::size_t width, std::size_t height, std::size_t components = 3) {
  std::string content = "\x08" + BigEndian(height) + BigEndian(width);
  content += static_cast<char>(components);
  for (std::size_t i = 1; i <= components; ++i) content += {static_cast<char>(i), '\x11', '\0'};
  return Segment(code, content);
}

const std::string kStart = Marker(0xD8);

bool Load(JPEGInfo& reader, std::string_view bytes) {
  MemorySource source(bytes);
  ImageFile file(source, "a.jpg");
  return reader.LoadImageInfo(file);
}

bool IsJpeg(std::string_view bytes) {
  JPEGInfo reader;
  return Load(reader, bytes);
}

// "3x2", or "none".
std::string SizeOf(std::string_view bytes) {
  JPEGInfo reader;
  if (!Load(reader, bytes)) return "none";
  return std::to_string(reader.Width()) + "x" + std::to_string(reader.Height());
}

std::string StreamOf(const JPEGInfo& reader, std::string_view bytes, MemorySink& sink) {
  MemorySource source(bytes);
  ImageFile file(source, "a.jpg");
  reader.WriteImageStream(file, sink);
  return sink.Bytes();
}

TEST(JPEGInfo, ReadsTheFrameHeader) {
  const std::string bytes = kStart + Segment(0xE0, "JFIF") +
                            Segment(0xDB, std::string(65, '\x10')) + Frame(0xC0, 0x1234, 0x0102) +
                            Segment(0xC4, std::string(30, '\1')) + "more";
  JPEGInfo reader;
  ASSERT_TRUE(Load(reader, bytes));
  EXPECT_EQ(reader.Width(), 0x1234);
  EXPECT_EQ(reader.Height(), 0x0102);
  EXPECT_EQ(reader.BitsPerComponent(), 8);
  EXPECT_EQ(reader.ColorSpace(), "/DeviceRGB");
  EXPECT_EQ(reader.ImageStreamSize(), static_cast<std::int32_t>(bytes.size()));
}

// Deliberate: 0xC4 begins Huffman tables and 0xC8 is reserved; both count as frame headers.
TEST(JPEGInfo, DeliberateEveryMarkerFromC0ToCBIsAFrameHeader) {
  for (int code = 0xC0; code <= 0xCB; ++code) {
    EXPECT_EQ(SizeOf(kStart + Frame(code, 3, 2)), "3x2") << code;
  }
  for (int code = 0; code <= 0xFF; ++code) {
    if (code >= 0xC0 && code <= 0xCB) continue;
    if (code == 0xD8) continue;  // has no length
    EXPECT_EQ(SizeOf(kStart + Frame(code, 3, 2) + Frame(0xC2, 7, 5)), "7x5") << code;
  }
}

// Deliberate: the bytes of a table that comes first are taken for the size.
TEST(JPEGInfo, DeliberateHuffmanTableBeforeTheFrameHeaderGivesTheSize) {
  EXPECT_EQ(SizeOf(kStart + Segment(0xC4, std::string("\0\1\2\3\4\5", 6)) + Frame(0xC0, 30, 20)),
            "772x258");
}

// Deliberate: the number of components is not looked at.
TEST(JPEGInfo, DeliberateGreyAndFourComponentsAreDeclaredAsRgb) {
  for (const std::size_t components : {1U, 3U, 4U}) {
    JPEGInfo reader;
    ASSERT_TRUE(Load(reader, kStart + Frame(0xC0, 3, 2, components)));
    EXPECT_EQ(reader.ColorSpace(), "/DeviceRGB");
    EXPECT_EQ(reader.BitsPerComponent(), 8);
  }
}

// Lengths around those of the pieces in which a file is read.
TEST(JPEGInfo, SegmentsOfAnyLengthAreSkipped) {
  for (const std::size_t size : {0U, 1U, 2U, 3U, 4085U, 4086U, 4087U, 4088U, 4089U, 4090U, 4091U,
                                 4092U, 4093U, 8181U, 8190U, 65532U, 65533U}) {
    EXPECT_EQ(SizeOf(kStart + Segment(0xFE, std::string(size, '\xFF')) + Frame(0xC0, 3, 2)), "3x2")
        << size;
  }
}

TEST(JPEGInfo, FrameHeaderInsideASegmentIsNotThePictures) {
  const std::string thumbnail = kStart + Frame(0xC0, 16, 12) + Marker(0xD9);
  EXPECT_EQ(SizeOf(kStart + Segment(0xE1, "Exif" + thumbnail) + Frame(0xC2, 300, 200)), "300x200");
}

TEST(JPEGInfo, SegmentLengthBelow2IsNoFrameHeader) {
  for (const std::size_t length : {0U, 1U}) {
    const std::string rest = std::string(20, '\0') + Frame(0xC0, 3, 2);
    EXPECT_EQ(SizeOf(kStart + Marker(0xE0) + BigEndian(length) + rest), "none");
    EXPECT_EQ(SizeOf(kStart + Marker(0xC0) + BigEndian(length) + "\x08" + BigEndian(2) +
                     BigEndian(3) + rest),
              "none");
  }
  EXPECT_EQ(SizeOf(kStart + Marker(0xE0) + BigEndian(2) + Frame(0xC0, 3, 2)), "3x2");
}

TEST(JPEGInfo, FileCutShortHasNoFrameHeader) {
  const std::string whole = kStart + Segment(0xE0, "12345") + Frame(0xC0, 3, 2);
  const std::size_t enough = 2 + 9 + 9;  // up to the width
  for (std::size_t size = 0; size <= whole.size(); ++size) {
    EXPECT_EQ(IsJpeg(whole.substr(0, size)), size >= enough) << size;
  }
}

TEST(JPEGInfo, SegmentBeyondTheEndHasNoFrameHeader) {
  EXPECT_FALSE(IsJpeg(kStart + Marker(0xE0) + BigEndian(65535) + Frame(0xC0, 3, 2)));
}

TEST(JPEGInfo, OtherBytesArePassedOverInPairs) {
  EXPECT_EQ(SizeOf("abcd" + Frame(0xC0, 3, 2)), "3x2");
  EXPECT_EQ(SizeOf(Frame(0xC0, 3, 2)), "3x2");
  EXPECT_EQ(SizeOf(std::string(10'000, 'x') + Frame(0xC0, 3, 2)), "3x2");
  // From an odd place on the marker is never met as a pair.
  EXPECT_EQ(SizeOf("abc" + Frame(0xC0, 3, 2)), "none");
  EXPECT_EQ(SizeOf(std::string(10'001, 'x') + Frame(0xC0, 3, 2)), "none");
}

TEST(JPEGInfo, Raises6For32768PixelsAndMore) {
  EXPECT_EQ(SizeOf(kStart + Frame(0xC0, 32767, 32767)), "32767x32767");
  for (const std::size_t size : {32768U, 65535U}) {
    EXPECT_EQ(ErrorNumberOf([&] { IsJpeg(kStart + Frame(0xC0, size, 1)); }), Error::kOverflow);
    EXPECT_EQ(ErrorNumberOf([&] { IsJpeg(kStart + Frame(0xC0, 1, size)); }), Error::kOverflow);
  }
  EXPECT_EQ(ErrorTextOf([] { IsJpeg(kStart + Frame(0xC0, 40000, 1)); }),
            "file 'a.jpg': a width of 40000 pixels does not fit into 16 bits");
}

// A frame header and then as many zeros as one likes.
class LongSource final : public ByteSource {
 public:
  explicit LongSource(std::uint64_t size) : size_(size) {}

  std::uint64_t Size() const override { return size_; }
  std::size_t Read(std::uint64_t offset, std::span<char> out) override {
    std::fill(out.begin(), out.end(), '\0');
    if (offset < head_.size()) head_.copy(out.data(), out.size(), static_cast<std::size_t>(offset));
    return out.size();
  }

 private:
  std::string head_ = kStart + Frame(0xC0, 3, 2);
  std::uint64_t size_;
};

// Zeros and then a frame header; counts what is read.
class LateSource final : public ByteSource {
 public:
  explicit LateSource(std::uint64_t zeros) : zeros_(zeros) {}

  std::uint64_t Size() const override { return zeros_ + frame_.size(); }
  std::uint64_t BytesRead() const { return bytesRead_; }
  std::size_t Read(std::uint64_t offset, std::span<char> out) override {
    std::size_t size = 0;
    for (; size < out.size() && offset + size < Size(); ++size) {
      const std::uint64_t place = offset + size;
      out[size] = place < zeros_ ? '\0' : frame_[static_cast<std::size_t>(place - zeros_)];
    }
    bytesRead_ += size;
    return size;
  }

 private:
  std::string frame_ = Frame(0xC0, 3, 2);
  std::uint64_t zeros_;
  std::uint64_t bytesRead_ = 0;
};

TEST(JPEGInfo, TheSearchForTheFrameHeaderEnds) {
  static constexpr std::uint64_t kLongest = JPEGInfo::kLongestSearch;
  const auto isFoundBehind = [](std::uint64_t zeros) {
    LateSource source(zeros);
    ImageFile file(source, "a.jpg");
    JPEGInfo reader;
    const bool isFound = reader.LoadImageInfo(file);
    EXPECT_LE(source.BytesRead(), kLongest);
    return isFound;
  };
  EXPECT_TRUE(isFoundBehind(kLongest / 2));
  EXPECT_TRUE(isFoundBehind(kLongest - 4096));
  EXPECT_FALSE(isFoundBehind(kLongest));
  EXPECT_FALSE(isFoundBehind(std::uint64_t{1} << 40));
}

// More header than any file has: 80 MB of full segments, of which little is read.
TEST(JPEGInfo, SegmentsThatAreSkippedDoNotCountForTheSearch) {
  std::string bytes = kStart;
  const std::string segment = Segment(0xE2, std::string(65533, 'p'));
  bytes.reserve(1280 * segment.size() + 100);
  for (int i = 0; i < 1280; ++i) bytes += segment;
  bytes += Frame(0xC0, 3, 2);
  EXPECT_GT(bytes.size(), JPEGInfo::kLongestSearch);
  EXPECT_EQ(SizeOf(bytes), "3x2");
}

TEST(JPEGInfo, Raises6ForAFileLongerThan32BitsCanSay) {
  LongSource longest((std::uint64_t{1} << 31) - 1);
  ImageFile longestFile(longest, "a.jpg");
  JPEGInfo reader;
  ASSERT_TRUE(reader.LoadImageInfo(longestFile));
  EXPECT_EQ(reader.ImageStreamSize(), 2147483647);

  LongSource tooLong(std::uint64_t{1} << 31);
  ImageFile tooLongFile(tooLong, "a.jpg");
  EXPECT_EQ(ErrorNumberOf([&] { reader.LoadImageInfo(tooLongFile); }), Error::kOverflow);
  EXPECT_EQ(ErrorTextOf([&] { reader.LoadImageInfo(tooLongFile); }),
            "file 'a.jpg': is longer than 2147483647 bytes");
}

// Sizes around that of the pieces.
TEST(JPEGInfo, StreamIsTheWholeFileInPieces) {
  for (const std::size_t size :
       {std::size_t{25}, kImagePiece - 1, kImagePiece, kImagePiece + 1, 3 * kImagePiece + 7}) {
    std::string bytes = kStart + Frame(0xC0, 3, 2);
    while (bytes.size() < size) bytes += static_cast<char>(bytes.size() * 7 / 3);
    bytes.resize(size);
    JPEGInfo reader;
    ASSERT_TRUE(Load(reader, bytes));
    MemorySink sink;
    EXPECT_TRUE(StreamOf(reader, bytes, sink) == bytes) << size;
    EXPECT_LE(*std::max_element(sink.Writes().begin(), sink.Writes().end()), kImagePiece);
  }
}

TEST(JPEGInfo, ShorterFileRaises62AndALongerOneIsCut) {
  const std::string bytes = kStart + Frame(0xC0, 3, 2) + std::string(1000, 'x');
  JPEGInfo reader;
  ASSERT_TRUE(Load(reader, bytes));
  MemorySink sink;
  EXPECT_EQ(StreamOf(reader, bytes + "more", sink), bytes);
  const std::string shorter = bytes.substr(0, bytes.size() - 1);
  EXPECT_EQ(ErrorNumberOf([&] { StreamOf(reader, shorter, sink); }), Error::kInputPastEnd);
  EXPECT_EQ(ErrorTextOf([&] { StreamOf(reader, shorter, sink); }),
            "file 'a.jpg': input past end: it has become shorter than " +
                std::to_string(bytes.size()) + " bytes");
}

}  // namespace
}  // namespace folivar::test
