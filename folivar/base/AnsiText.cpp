#include "folivar/base/AnsiText.h"

#include <algorithm>
#include <utility>

#include "folivar/base/Utf8.h"

namespace folivar {
namespace {

// Windows code page 1252, bytes 0x80 to 0x9F, sorted by character.
constexpr auto kWindows1252 = std::to_array<std::pair<char16_t, unsigned char>>({
    {0x0152, 0x8C},  // OE
    {0x0153, 0x9C},  // oe
    {0x0160, 0x8A},  // S with caron
    {0x0161, 0x9A},  // s with caron
    {0x0178, 0x9F},  // Y with diaeresis
    {0x017D, 0x8E},  // Z with caron
    {0x017E, 0x9E},  // z with caron
    {0x0192, 0x83},  // florin
    {0x02C6, 0x88},  // circumflex
    {0x02DC, 0x98},  // small tilde
    {0x2013, 0x96},  // en dash
    {0x2014, 0x97},  // em dash
    {0x2018, 0x91},  // left single quote
    {0x2019, 0x92},  // right single quote
    {0x201A, 0x82},  // low single quote
    {0x201C, 0x93},  // left double quote
    {0x201D, 0x94},  // right double quote
    {0x201E, 0x84},  // low double quote
    {0x2020, 0x86},  // dagger
    {0x2021, 0x87},  // double dagger
    {0x2022, 0x95},  // bullet
    {0x2026, 0x85},  // ellipsis
    {0x2030, 0x89},  // per mille
    {0x2039, 0x8B},  // left angle quote
    {0x203A, 0x9B},  // right angle quote
    {0x20AC, 0x80},  // euro
    {0x2122, 0x99},  // trade mark
});

}  // namespace

char AnsiByte(char16_t unit) {
  if (unit <= 0xFF) return static_cast<char>(static_cast<unsigned char>(unit));
  const auto* found =
      std::lower_bound(kWindows1252.begin(), kWindows1252.end(), unit,
                       [](const auto& row, char16_t wanted) { return row.first < wanted; });
  if (found == kWindows1252.end() || found->first != unit) return '?';
  return static_cast<char>(found->second);
}

char* PutAnsi(char* out, std::u16string_view units) {
  char16_t all = 0;
  for (const char16_t unit : units) all = static_cast<char16_t>(all | unit);
  if (all <= 0xFF) {
    return std::transform(units.begin(), units.end(), out,
                          [](char16_t unit) { return static_cast<char>(unit); });
  }
  return std::transform(units.begin(), units.end(), out, AnsiByte);
}

char16_t AnsiCharacter(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  const auto* found = std::find_if(kWindows1252.begin(), kWindows1252.end(),
                                   [value](const auto& row) { return row.second == value; });
  return found == kWindows1252.end() ? char16_t{value} : found->first;
}

Text AnsiBytesToText(std::string_view bytes) {
  std::u16string units(bytes.size(), u'\0');
  std::transform(bytes.begin(), bytes.end(), units.begin(), AnsiCharacter);
  return Text(units);
}

AnsiText::AnsiText(TextView text) : bytes_(text.Utf8()), traits_(TraitsOf(bytes_)) {
  if (text.IsUtf16()) {
    Convert(text.Utf16());
  } else if (traits_.hasHighBytes) {
    Convert(Utf16FromUtf8(text.Utf8()));
  }
}

void AnsiText::Convert(std::u16string_view units) {
  char* out = short_.data();
  if (units.size() > short_.size()) {
    long_.resize(units.size());
    out = long_.data();
  }
  PutAnsi(out, units);
  bytes_ = std::string_view(out, units.size());
  traits_ = TraitsOf(bytes_);
}

}  // namespace folivar
