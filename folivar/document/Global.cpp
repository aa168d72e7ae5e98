#include "folivar/document/Global.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <utility>

#include "folivar/base/CaseFold.h"
#include "folivar/base/Decimal.h"
#include "folivar/base/Error.h"
#include "folivar/base/Numbers.h"
#include "folivar/file/FileSystem.h"

namespace folivar {
namespace {

constexpr double kScale = 10000;  // four decimals
constexpr std::int64_t kScaledLimit = (std::int64_t{1} << 31) * 10000;

// Whether a * 10000 lies below (-1), at (0) or above (1) `product`, that product rounded to double.
// The halves of `a` have at most 27 bits, so their products are exact, and so is the difference of
// two numbers so near each other.
int SideOfProduct(double a, double product) {
  constexpr double kSplit = 134217729;  // 2^27 + 1
  const double shifted = a * kSplit;
  const double high = shifted - (shifted - a);
  const double low = a - high;
  const double highDifference = high * kScale - product;
  const double lowProduct = -(low * kScale);
  return highDifference < lowProduct ? -1 : highDifference > lowProduct ? 1 : 0;
}

Error CannotWrite(double x) {
  return Error::Overflow("a value of " + DigitsOf(x) +
                         " cannot be written: PDF numbers are below 2^31");
}

// |x| in ten thousandths, exact ties to even.
std::int64_t TenThousandths(double x) {
  const double magnitude = std::fabs(x);
  if (!(magnitude < 2147483648.0)) throw CannotWrite(x);
  const double product = magnitude * kScale;
  const double rounded = RoundHalfToEven(product);
  auto result = static_cast<std::int64_t>(rounded);
  const double rest = product - rounded;
  if (rest == 0.5 || rest == -0.5) {
    // A tie, unless the product was rounded onto it.
    const int side = SideOfProduct(magnitude, product);
    if (side > 0 && rest > 0) ++result;
    if (side < 0 && rest < 0) --result;
  }
  if (result >= kScaledLimit) throw CannotWrite(x);
  return result;
}

// ".25 " for 25, without trailing zeros; only the blank for 0.
struct Fraction {
  std::array<char, 4> text{};
  std::uint8_t size = 0;
};
constexpr std::array<Fraction, 100> kHundredths = [] {
  std::array<Fraction, 100> fractions{};
  for (std::size_t i = 0; i < fractions.size(); ++i) {
    Fraction& fraction = fractions[i];
    if (i != 0) fraction.text[fraction.size++] = '.';
    if (i != 0) fraction.text[fraction.size++] = static_cast<char>('0' + i / 10);
    if (i % 10 != 0) fraction.text[fraction.size++] = static_cast<char>('0' + i % 10);
    fraction.text[fraction.size++] = ' ';
  }
  return fractions;
}();

// ".0625 " for 625, as kHundredths. Of hundredths four bytes are written, whatever their length:
// the copy is faster than the choice.
char* WriteFraction(char* out, std::uint32_t tenThousandths) {
  if (tenThousandths % 100 == 0) {
    const Fraction& fraction = kHundredths[tenThousandths / 100];
    std::memcpy(out, fraction.text.data(), fraction.text.size());
    return out + fraction.size;
  }
  *out++ = '.';
  out = WriteFourDigits(out, tenThousandths);
  if (out[-1] == '0') --out;
  *out++ = ' ';
  return out;
}

void SortRange(std::vector<std::u16string>& folded, std::vector<Text>& strings, std::int64_t lo,
               std::int64_t hi) {
  const auto at = [](std::int64_t index) { return static_cast<std::size_t>(index); };
  while (lo < hi) {
    const std::u16string pivot =
        folded[at(static_cast<std::int64_t>(RoundHalfToEven(static_cast<double>(lo + hi) / 2)))];
    std::int64_t i = lo;
    std::int64_t j = hi;
    while (i <= j) {
      while (folded[at(i)] < pivot && i < hi) ++i;
      while (folded[at(j)] > pivot && j > lo) --j;
      if (i <= j) {
        std::swap(folded[at(i)], folded[at(j)]);
        std::swap(strings[at(i)], strings[at(j)]);
        ++i;
        --j;
      }
    }
    // The shorter part by recursion, the longer one here: the stack stays shallow.
    if (j - lo < hi - i) {
      SortRange(folded, strings, lo, j);
      lo = i;
    } else {
      SortRange(folded, strings, i, hi);
      hi = j;
    }
  }
}

}  // namespace

char* FormatReal(char* out, double x) {
  // Whole coordinates take no rounding.
  if (x >= 0 && x < 65536) {
    const auto whole = static_cast<std::int32_t>(x);
    if (x == whole) {
      out = WriteDecimal(out, static_cast<std::uint32_t>(whole));
      *out++ = ' ';
      return out;
    }
  }
  const double product = std::fabs(x) * kScale;
  // Nearly all others fit into 32 bits and are no ties.
  const double rounded = (product + kNoFraction) - kNoFraction;
  if (product < 4294967295.0 && std::fabs(product - rounded) != 0.5) [[likely]] {
    const auto scaled = static_cast<std::uint32_t>(static_cast<std::int64_t>(rounded));
    if (x < 0 && scaled != 0) *out++ = '-';
    return WriteFraction(WriteDecimal(out, scaled / 10000), scaled % 10000);
  }
  const std::int64_t scaled = TenThousandths(x);
  if (x < 0 && scaled != 0) *out++ = '-';
  out = WriteDecimal(out, static_cast<std::uint32_t>(scaled / 10000));
  return WriteFraction(out, static_cast<std::uint32_t>(scaled % 10000));
}

const Text& MaxOf(const Text& a, const Text& b) { return CompareIgnoringCase(a, b) >= 0 ? a : b; }
const Text& MinOf(const Text& a, const Text& b) { return CompareIgnoringCase(a, b) <= 0 ? a : b; }

std::int16_t FindLastInRange(TextView s, TextView find, std::int16_t start, std::int16_t stop) {
  const std::u16string text = FoldCase(s);
  const std::u16string wanted = FoldCase(find);
  std::size_t end = stop < 0 ? 0 : static_cast<std::size_t>(stop);
  if (stop == 0 || end > text.size()) end = text.size();
  const std::size_t begin = start < 1 ? 0 : static_cast<std::size_t>(start) - 1;
  std::size_t found = begin;
  if (begin < end) {
    const std::size_t place = std::u16string_view(text).substr(begin, end - begin).rfind(wanted);
    if (place != std::u16string_view::npos) found = begin + std::min(place + 1, end - begin);
  }
  if (found > 32767) throw Error::Overflow("a position in a text does not fit into 16 bits");
  return static_cast<std::int16_t>(found);
}

bool FileExists(TextView path) noexcept {
  try {
    return KindOf(Text(path)) != FileKind::kNone;
  } catch (...) {
    return false;
  }
}

std::int64_t CeilDiv(std::int64_t a, std::int64_t b) {
  if (b == 0) throw Error::DivisionByZero("division by zero").WithMember("Global.CeilDiv");
  if (a == std::numeric_limits<std::int64_t>::min() && b == -1) {
    throw Error::Overflow("the quotient does not fit into 64 bits").WithMember("Global.CeilDiv");
  }
  return a / b + (a % b != 0 ? 1 : 0);
}

void SortStrings(std::vector<Text>& strings, std::int32_t lo, std::int32_t hi) {
  if (lo == -1) {
    lo = 0;
    hi = static_cast<std::int32_t>(strings.size()) - 1;
  }
  if (hi <= 0) return;
  if (lo < 0 || static_cast<std::size_t>(hi) >= strings.size() ||
      static_cast<std::size_t>(lo) >= strings.size()) {
    throw Error::SubscriptOutOfRange(std::to_string(lo) + " to " + std::to_string(hi) +
                                     " is outside the " + std::to_string(strings.size()) +
                                     " strings")
        .WithMember("Global.SortStrings");
  }
  std::vector<std::u16string> folded;
  folded.reserve(strings.size());
  for (const Text& string : strings) folded.push_back(FoldCase(string));
  SortRange(folded, strings, lo, hi);
}

}  // namespace folivar
