#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "folivar/base/Error.h"
#include "folivar/file/ByteSink.h"
#include "folivar/images/ImageFile.h"
#include "folivar/images/JPEGInfo.h"
#include "tests/support/MemorySource.h"

namespace folivar {
namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

struct Outcome {
  int error = 0;
  std::int32_t width = 0;
  std::int32_t height = 0;
  bool isJpeg = false;

  bool operator==(const Outcome&) const = default;
};

// The rules once more, a byte at a time.
Outcome PlainOutcome(std::string_view bytes) {
  std::size_t position = 0;
  const auto take = [&]() -> std::optional<int> {
    if (position >= bytes.size()) return std::nullopt;
    return static_cast<unsigned char>(bytes[position++]);
  };
  for (;;) {
    const auto first = take();
    const auto second = take();
    if (!second) return {};
    if (first != 0xFF || second == 0xD8) continue;
    const auto high = take();
    const auto low = take();
    if (!low) return {};
    const int length = *high * 256 + *low;
    if (length < 2) return {};
    if (*second < 0xC0 || *second > 0xCB) {
      position += static_cast<std::size_t>(length - 2);
      continue;
    }
    take();
    const auto height1 = take();
    const auto height2 = take();
    const auto width1 = take();
    const auto width2 = take();
    if (!width2) return {};
    if (*height1 > 127 || *width1 > 127) return {.error = Error::kOverflow};
    return {.width = *width1 * 256 + *width2, .height = *height1 * 256 + *height2, .isJpeg = true};
  }
}

class Collector final : public ByteSink {
 public:
  void Write(std::string_view bytes) override { bytes_ += bytes; }
  const std::string& Bytes() const { return bytes_; }

 private:
  std::string bytes_;
};

Outcome ReaderOutcome(JPEGInfo& reader, ImageFile& file) {
  try {
    if (!reader.LoadImageInfo(file)) return {};
    return {.width = reader.Width(), .height = reader.Height(), .isJpeg = true};
  } catch (const Error& error) {
    Require(std::string_view(error.what()).find(file.Name()) != std::string_view::npos);
    return {.error = error.Number()};
  }
}

void ReadFile(std::string_view bytes) {
  test::MemorySource source(bytes);
  ImageFile file(source, "fuzz.jpg");
  JPEGInfo reader;
  const Outcome outcome = ReaderOutcome(reader, file);
  Require(outcome == PlainOutcome(bytes));
  if (!outcome.isJpeg) return;
  Collector stream;
  reader.WriteImageStream(file, stream);
  Require(stream.Bytes() == bytes);
  Require(reader.ImageStreamSize() == static_cast<std::int32_t>(bytes.size()));
}

}  // namespace
}  // namespace folivar

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  folivar::ReadFile({reinterpret_cast<const char*>(data), size});
  return 0;
}
