#include "folivar/document/PDFText.h"

#include <cstdlib>
#include <limits>
#include <new>

#include "folivar/document/Error.h"

namespace folivar {
namespace {

constexpr std::size_t kLongest = std::numeric_limits<std::int32_t>::max();

// A small text grows by half and a large one by a quarter: few steps for a short text, little room
// left over in a long one.
constexpr std::size_t kFirstCapacity = 256;
constexpr std::size_t kLargeText = 4096;

bool NeedsEscape(char byte) { return byte == '\\' || byte == '(' || byte == ')'; }

std::size_t CountEscapes(std::string_view bytes) {
  std::size_t count = 0;
  for (const char byte : bytes) count += NeedsEscape(byte) ? 1U : 0U;
  return count;
}

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
    throw Error::Overflow("A text of more than 2147483647 bytes does not fit into the file");
  }
  const std::size_t step = size_ < kLargeText ? capacity_ / 2 : capacity_ / 4;
  const std::size_t capacity = std::max({kFirstCapacity, size_ + size, capacity_ + step});
  auto* data = static_cast<char*>(std::realloc(data_, capacity));
  if (data == nullptr) throw std::bad_alloc();
  data_ = data;
  capacity_ = capacity;
}

std::size_t PDFText::SizeBound(Escaped text) {
  return text.bytes.size() + CountEscapes(text.bytes);
}

char* PDFText::Put(char* out, Escaped text) {
  if (CountEscapes(text.bytes) == 0) return Put(out, text.bytes);
  for (const char byte : text.bytes) {
    if (NeedsEscape(byte)) *out++ = '\\';
    *out++ = byte;
  }
  return out;
}

}  // namespace folivar
