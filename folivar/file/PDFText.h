#pragma once

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <type_traits>
#include <utility>

#include "folivar/base/Decimal.h"
#include "folivar/document/Global.h"
#include "folivar/file/Reference.h"

namespace folivar {

// What can be appended to a PDFText besides bytes, whole numbers and References:

// A real, as FormatReal writes it, its own blank included: Real{612} is "612 ".
struct Real {
  double value;
};

// The shares of red, green and blue of a colour 0x00BBGGRR: ColorShares{0x8000FF} is "1 0 0.502 ".
struct ColorShares {
  std::int32_t color;
};

// Exactly ten digits with leading zeros, below 10^10: TenDigits{15} is "0000000015".
struct TenDigits {
  std::uint64_t value;
};

// Bytes inside a literal string, with \, ( and ) escaped: Escaped{"a(b)"} is "a\(b\)".
struct Escaped {
  std::string_view bytes;
  bool isPlain = false;  // known to hold none of them
};

// Bytes as a name, without its slash: what would end the name, and "#", as "#" and two hex digits:
// Name{"Times(W1)"} is "Times#28W1#29".
struct Name {
  std::string_view bytes;
};

// A text as the bytes that go into the file, as AnsiText makes them.
struct Ansi {
  std::u16string_view units;
};

// PDF syntax under construction: a growing run of bytes, and the only way that numbers reach them.
//
//   text.Append("/MediaBox [ 0 0 ", Real{612}, " ", Real{792}, "]\n");
//
// A float, a bool or a char by itself does not compile: say Real, PdfBool or a string.
class PDFText {
 public:
  PDFText() = default;
  ~PDFText();
  PDFText(PDFText&& other) noexcept;
  PDFText& operator=(PDFText&& other) noexcept;
  PDFText(const PDFText&) = delete;
  PDFText& operator=(const PDFText&) = delete;

  // Appends all parts, or nothing: a Real that cannot be written raises 6, and so does a text that
  // would grow beyond 2^31 - 1 bytes.
  template <class... Parts>
  void Append(const Parts&... parts) {
    char* const begin = Room((SizeBound(parts) + ...));
    char* end = begin;
    ((end = Put(end, parts)), ...);
    size_ += static_cast<std::size_t>(end - begin);
  }

  std::string_view Bytes() const { return {data_, size_}; }
  std::size_t Size() const { return size_; }

  // Back to an earlier size.
  void Truncate(std::size_t size) { size_ = std::min(size, size_); }

 private:
  // An upper bound of what Put writes, for each kind of part. A literal's length needs no counting.
  template <std::size_t kSize>
  static constexpr std::size_t SizeBound(const char (&)[kSize]) {
    return kSize - 1;
  }
  static std::size_t SizeBound(std::string_view bytes) { return bytes.size(); }
  static std::size_t SizeBound(Real) { return kLongestReal; }
  static std::size_t SizeBound(ColorShares) { return 3 * kLongestColorShare; }
  static std::size_t SizeBound(const ColorOp& set) {
    return SizeBound(ColorShares{set.color}) + set.op.size();
  }
  static std::size_t SizeBound(Reference) { return kLongestInteger + 4; }
  static std::size_t SizeBound(TenDigits) { return 10; }
  static std::size_t SizeBound(const Escaped& text) {
    return text.isPlain ? text.bytes.size() : BoundOfEscaped(text.bytes);
  }
  static std::size_t SizeBound(Name name) { return 3 * name.bytes.size(); }
  static std::size_t SizeBound(Ansi text) { return text.units.size(); }
  template <std::integral Integer>
  static std::size_t SizeBound(Integer) {
    static_assert(!std::same_as<Integer, bool> && !std::same_as<Integer, char>);
    static_assert(sizeof(Integer) <= 4);
    return kLongestInteger;
  }

  template <std::size_t kSize>
  static char* Put(char* out, const char (&literal)[kSize]) {
    std::memcpy(out, literal, kSize - 1);
    return out + kSize - 1;
  }
  static char* Put(char* out, std::string_view bytes) {
    if (!bytes.empty()) std::memcpy(out, bytes.data(), bytes.size());
    return out + bytes.size();
  }
  static char* Put(char* out, Real real) { return FormatReal(out, real.value); }
  static char* Put(char* out, ColorShares shares);
  static char* Put(char* out, const ColorOp& set) {
    return Put(Put(out, ColorShares{set.color}), set.op);
  }
  static char* Put(char* out, Reference reference) {
    return Put(Put(out, reference.Number()), " 0 R");
  }
  static char* Put(char* out, TenDigits number) { return WriteTenDigits(out, number.value); }
  static char* Put(char* out, const Escaped& text) {
    return text.isPlain ? Put(out, text.bytes) : PutEscaped(out, text.bytes);
  }
  static char* Put(char* out, Name name);
  static char* Put(char* out, Ansi text);
  template <std::integral Integer>
  static char* Put(char* out, Integer number) {
    if (std::cmp_less(number, 0)) {
      *out++ = '-';
      return WriteDecimal(out, 0U - static_cast<std::uint32_t>(number));
    }
    return WriteDecimal(out, static_cast<std::uint32_t>(number));
  }

  static std::size_t BoundOfEscaped(std::string_view bytes);
  static char* PutEscaped(char* out, std::string_view bytes);

  // Room for `size` more bytes behind the last one.
  char* Room(std::size_t size) {
    if (size > capacity_ - size_) Grow(size);
    return data_ + size_;
  }
  void Grow(std::size_t size);

  static constexpr std::size_t kLongestInteger = 11;    // "-2147483648"
  static constexpr std::size_t kLongestColorShare = 8;  // "0.1234 ", and a byte that may be written

  char* data_ = nullptr;
  std::size_t size_ = 0;
  std::size_t capacity_ = 0;
};

// Several appends that count as one: unless Keep is called, what was appended since is taken back.
class PDFTextPiece {
 public:
  explicit PDFTextPiece(PDFText& text) : text_(text), start_(text.Size()) {}
  ~PDFTextPiece() {
    if (!kept_) text_.Truncate(start_);
  }
  PDFTextPiece(const PDFTextPiece&) = delete;
  PDFTextPiece& operator=(const PDFTextPiece&) = delete;

  void Keep() { kept_ = true; }

 private:
  PDFText& text_;
  std::size_t start_;
  bool kept_ = false;
};

}  // namespace folivar
