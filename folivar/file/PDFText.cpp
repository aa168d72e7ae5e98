#include "folivar/file/PDFText.h"

#include <array>
#include <cstdlib>
#include <limits>
#include <new>

#include "folivar/base/AnsiText.h"
#include "folivar/base/ByteTraits.h"
#include "folivar/base/Error.h"
#include "folivar/base/HexDigits.h"

namespace folivar {
namespace {

constexpr std::size_t kLongest = std::numeric_limits<std::int32_t>::max();

// A small text grows by half and a large one by an eighth: few steps for a short text, little room
// left over in a long one.
constexpr std::size_t kFirstCapacity = 256;
constexpr std::size_t kLargeText = 4096;

// The texts of all colour shares, each in a word of its own. A byte divided by 255 is never near a
// half of the last decimal, so that rounding needs no care.
struct ShareText {
  std::array<char, 7> digits{};
  std::uint8_t size = 0;
};

constexpr std::array<ShareText, 256> kColorShares = [] {
  std::array<ShareText, 256> texts{};
  for (std::uint32_t byte = 0; byte < 256; ++byte) {
    const std::uint32_t tenThousandths = (byte * 20000 + 255) / 510;
    ShareText& text = texts[byte];
    text.digits[text.size++] = static_cast<char>('0' + tenThousandths / 10000);
    std::uint32_t rest = tenThousandths % 10000;
    if (rest != 0) text.digits[text.size++] = '.';
    for (std::uint32_t unit = 1000; rest != 0; unit /= 10) {
      text.digits[text.size++] = static_cast<char>('0' + rest / unit);
      rest %= unit;
    }
    text.digits[text.size++] = ' ';
  }
  return texts;
}();

}  // namespace

// The bytes live in memory from realloc: it grows a large text in place, and new bytes are not
// cleared first, which a vector would do for every piece.
PDFText::~PDFText() { std::free(data_); }

PDFText::PDFText(PDFText&& other) noexcept
    : data_(std::exchange(other.data_, nullptr)),
      size_(std::exchange(other.size_, 0)),
      capacity_(std::exchange(other.capacity_, 0)) {}

PDFText& PDFText::operator=(PDFText&& other) noexcept {
  std::swap(data_, other.data_);
  std::swap(size_, other.size_);
  std::swap(capacity_, other.capacity_);
  return *this;
}

void PDFText::Grow(std::size_t size) {
  if (size > kLongest - size_) {
    throw Error::Overflow("a text of more than 2147483647 bytes does not fit into the file");
  }
  const std::size_t step = size_ < kLargeText ? capacity_ / 2 : capacity_ / 8;
  const std::size_t wanted = std::max({kFirstCapacity, size_ + size, capacity_ + step});
  const std::size_t capacity = std::min(wanted, kLongest);
  auto* data = static_cast<char*>(std::realloc(data_, capacity));
  if (data == nullptr) throw std::bad_alloc();
  data_ = data;
  capacity_ = capacity;
}

std::size_t PDFText::BoundOfEscaped(std::string_view bytes) {
  // Room for a backslash before every byte, unless that would be much.
  if (bytes.size() <= kLargeText) return 2 * bytes.size();
  return bytes.size() +
         static_cast<std::size_t>(std::count_if(bytes.begin(), bytes.end(), NeedsEscape));
}

char* PDFText::PutEscaped(char* out, std::string_view bytes) {
  for (const char byte : bytes) {
    if (NeedsEscape(byte)) *out++ = '\\';
    *out++ = byte;
  }
  return out;
}

char* PDFText::Put(char* out, Name name) {
  constexpr std::string_view kDelimiters = "#%()/<>[]{}";
  for (const char byte : name.bytes) {
    const auto value = static_cast<unsigned char>(byte);
    if (value > ' ' && kDelimiters.find(byte) == std::string_view::npos) {
      *out++ = byte;
    } else {
      *out++ = '#';
      *out++ = kHexDigits[value >> 4];
      *out++ = kHexDigits[value & 0xF];
    }
  }
  return out;
}

char* PDFText::Put(char* out, Ansi text) { return PutAnsi(out, text.units); }

char* PDFText::Put(char* out, ColorShares shares) {
  const auto color = static_cast<std::uint32_t>(shares.color);
  for (const int shift : {0, 8, 16}) {
    const ShareText& text = kColorShares[color >> shift & 0xFF];
    std::memcpy(out, &text, sizeof text);
    out += text.size;
  }
  return out;
}

}  // namespace folivar
