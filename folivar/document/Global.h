#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>
#include <vector>

#include "folivar/base/Text.h"

namespace folivar {

// The procedures that all classes share. What the formatters write is part of the file format.

// The longest real, its blank included: "-2147483647.9999 ".
inline constexpr std::size_t kLongestReal = 17;

// Writes `x` as every real in the file is written and returns the end: at most four decimals, exact
// ties to the even digit, no trailing zeros, no exponent, never "-0", then one blank. "612 ",
// "0.5 ", "-3.25 ". Writers rely on the blank as the separator, so a blank of their own after it
// gives two in the file. Raises 6 for what is not a number and from 2^31 on (rounded), and writes
// nothing then. `out` has room for kLongestReal bytes.
char* FormatReal(char* out, double x);

template <class T>
concept Arithmetic = std::is_arithmetic_v<T>;

// On a tie the first argument. Texts compare without regard to case.
template <Arithmetic Number>
constexpr Number MaxOf(Number a, Number b) {
  return a >= b ? a : b;
}
template <Arithmetic Number>
constexpr Number MinOf(Number a, Number b) {
  return a <= b ? a : b;
}
const Text& MaxOf(const Text& a, const Text& b);
const Text& MinOf(const Text& a, const Text& b);

// The position (from 1) of the last `find` in `s` between positions `start` and `stop`, compared
// without regard to case; a stop of 0, or beyond the end, is the end, a start below 1 is 1.
// Deliberate: when nothing is found the result is start - 1, which callers tell by its being below
// start.
std::int16_t FindLastInRange(TextView s, TextView find, std::int16_t start, std::int16_t stop);

// Whether the system finds something under the path, taken as it stands; a directory counts. Never
// raises.
bool FileExists(TextView path) noexcept;

// a / b truncated toward zero, plus 1 if there is a remainder: for positive numbers the quotient
// rounded up. Raises 11 for a b of 0, and 6 when the quotient does not fit.
std::int64_t CeilDiv(std::int64_t a, std::int64_t b);

// The operators that set the stroke and the fill colour, for PDFText to append: "1 0 0 RG\n" and
// "1 0 0 rg\n" for pure red. Colours are 0x00BBGGRR; the top byte means nothing.
struct ColorOp {
  std::int32_t color;
  std::string_view op;
};
constexpr ColorOp StrokeColorOp(std::int32_t color) { return {color, "RG\n"}; }
constexpr ColorOp FillColorOp(std::int32_t color) { return {color, "rg\n"}; }

// "true" or "false".
constexpr std::string_view PdfBool(bool flag) { return flag ? "true" : "false"; }

// Sorts strings[lo] to strings[hi] (from 0) upwards without regard to case; a lo of -1 is the whole
// vector. Does nothing for a hi of 0 or below. Texts that differ only in case end in no particular,
// but always the same, order. Raises 9 for a place outside the vector.
void SortStrings(std::vector<Text>& strings, std::int32_t lo, std::int32_t hi);

}  // namespace folivar
