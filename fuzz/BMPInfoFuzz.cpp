#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "folivar/base/Error.h"
#include "folivar/file/ByteSink.h"
#include "folivar/images/BMPInfo.h"
#include "folivar/images/ImageFile.h"
#include "tests/support/MemorySource.h"

namespace folivar {
namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

class Collector final : public ByteSink {
 public:
  void Write(std::string_view bytes) override { bytes_ += bytes; }
  const std::string& Bytes() const { return bytes_; }

 private:
  std::string bytes_;
};

// The number of the error, 0 for none. Each names the file.
template <class Action>
std::int32_t ErrorOf(const ImageFile& file, Action action) {
  try {
    action();
    return 0;
  } catch (const Error& error) {
    Require(std::string_view(error.what()).find(file.Name()) != std::string_view::npos);
    return error.Number();
  }
}

std::uint64_t LittleEndian(std::string_view bytes, std::size_t place, std::size_t size) {
  std::uint64_t number = 0;
  for (std::size_t i = size; i > 0; --i) {
    number = number * 256 + static_cast<unsigned char>(bytes[place + i - 1]);
  }
  return number;
}

// What the pixels come to, byte by byte, and where they end in the file.
struct Plain {
  std::string stream;
  std::uint64_t end = 0;
};

Plain PlainStream(std::string_view bytes) {
  const std::uint64_t offset = LittleEndian(bytes, 10, 4);
  const std::uint64_t width = LittleEndian(bytes, 18, 4);
  const std::uint64_t height = LittleEndian(bytes, 22, 4);
  const std::uint64_t bits = LittleEndian(bytes, 28, 2);
  const std::uint64_t length = (width * bits + 7) / 8;
  const std::uint64_t distance = (length + 3) / 4 * 4;
  Plain plain{{}, offset + (height - 1) * distance + length};
  Require(plain.end <= bytes.size());
  for (std::uint64_t y = height; y > 0; --y) {
    for (std::uint64_t x = 0; x < length; ++x) {
      const std::uint64_t swapped = bits != 24 ? x : x % 3 == 0 ? x + 2 : x % 3 == 2 ? x - 2 : x;
      plain.stream += bytes[static_cast<std::size_t>(offset + (y - 1) * distance + swapped)];
    }
  }
  return plain;
}

void ReadFile(std::string_view bytes) {
  test::MemorySource source(bytes);
  ImageFile file(source, "fuzz.bmp");
  BMPInfo reader;
  const std::int32_t error = ErrorOf(file, [&] { Require(reader.LoadImageInfo(file)); });
  Require(error == 0 || error == Error::kUnknownImageType);
  if (error != 0) return;

  Require(reader.Width() > 0 && reader.Height() > 0);
  Require(reader.ColorSpace().starts_with("/Device") ||
          (reader.ColorSpace().starts_with("[/Indexed /DeviceRGB ") &&
           reader.ColorSpace().ends_with("> ]")));
  const Plain plain = PlainStream(bytes);
  Collector stream;
  reader.WriteImageStream(file, stream);
  Require(stream.Bytes() == plain.stream);
  Require(reader.ImageStreamSize() == static_cast<std::int32_t>(plain.stream.size()));

  // One byte less, and the stream could not be what was promised.
  test::MemorySource shorter(bytes.substr(0, static_cast<std::size_t>(plain.end - 1)));
  ImageFile shorterFile(shorter, "fuzz.bmp");
  Require(ErrorOf(shorterFile, [&] { reader.WriteImageStream(shorterFile, stream); }) ==
          Error::kInputPastEnd);
}

}  // namespace
}  // namespace folivar

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  folivar::ReadFile({reinterpret_cast<const char*>(data), size});
  return 0;
}
