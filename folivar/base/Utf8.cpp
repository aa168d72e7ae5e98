#include "folivar/base/Utf8.h"

#include <cstddef>
#include <cstdint>

#include "folivar/base/ByteTraits.h"
#include "folivar/base/Error.h"

namespace folivar {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

struct Sequence {
  std::size_t length;  // 0: not the first byte of a sequence
  char32_t leadBits;   // the first byte's share of the character
  char32_t lowest;     // below it the sequence is longer than need be
};

Sequence SequenceOf(unsigned char lead) {
  if (lead < 0x80) return {1, lead, 0};
  if (lead >= 0xC0 && lead < 0xE0) return {2, lead & 0x1Fu, 0x80};
  if (lead >= 0xE0 && lead < 0xF0) return {3, lead & 0x0Fu, 0x800};
  if (lead >= 0xF0 && lead < 0xF8) return {4, lead & 0x07u, 0x10000};
  return {0, 0, 0};
}

bool IsSurrogate(char32_t character) { return character >= 0xD800 && character <= 0xDFFF; }
bool IsHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool IsLowSurrogate(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

Error NotUtf8(std::size_t position) {
  return Error::InvalidArgument("text is not UTF-8: invalid byte at position " +
                                std::to_string(position) + " (counted from 0)");
}

void AppendUtf16(std::u16string& units, char32_t character) {
  if (character < 0x10000) {
    units.push_back(static_cast<char16_t>(character));
    return;
  }
  const char32_t offset = character - 0x10000;
  units.push_back(static_cast<char16_t>(0xD800 + (offset >> 10)));
  units.push_back(static_cast<char16_t>(0xDC00 + (offset & 0x3FF)));
}

void AppendUtf8(std::string& bytes, char32_t character) {
  const auto put = [&bytes](char32_t byte) { bytes.push_back(static_cast<char>(byte)); };
  const auto putTail = [&](int shift) { put(0x80 | ((character >> shift) & 0x3F)); };
  if (character < 0x80) {
    put(character);
  } else if (character < 0x800) {
    put(0xC0 | (character >> 6));
    putTail(0);
  } else if (character < 0x10000) {
    put(0xE0 | (character >> 12));
    putTail(6);
    putTail(0);
  } else {
    put(0xF0 | (character >> 18));
    putTail(12);
    putTail(6);
    putTail(0);
  }
}

}  // namespace

std::u16string Utf16FromUtf8(std::string_view utf8) {
  if (!TraitsOf(utf8).hasHighBytes) return {utf8.begin(), utf8.end()};
  std::u16string units;
  units.reserve(utf8.size());
  for (std::size_t position = 0; position < utf8.size();) {
    const Sequence sequence = SequenceOf(static_cast<unsigned char>(utf8[position]));
    if (sequence.length == 0) throw NotUtf8(position);
    char32_t character = sequence.leadBits;
    for (std::size_t i = 1; i < sequence.length; ++i) {
      const bool isCutOff = position + i == utf8.size();
      const auto byte = static_cast<unsigned char>(isCutOff ? 0 : utf8[position + i]);
      if ((byte & 0xC0) != 0x80) throw NotUtf8(position);
      character = (character << 6) | (byte & 0x3Fu);
    }
    if (character < sequence.lowest || character > 0x10FFFF || IsSurrogate(character)) {
      throw NotUtf8(position);
    }
    AppendUtf16(units, character);
    position += sequence.length;
  }
  return units;
}

std::string Utf8FromUtf16(std::u16string_view utf16) {
  std::string bytes;
  bytes.reserve(utf16.size());
  for (std::size_t i = 0; i < utf16.size(); ++i) {
    const char16_t unit = utf16[i];
    if (IsHighSurrogate(unit) && i + 1 < utf16.size() && IsLowSurrogate(utf16[i + 1])) {
      AppendUtf8(bytes, 0x10000 + ((char32_t{unit} - 0xD800) << 10) + (utf16[i + 1] - 0xDC00u));
      ++i;
    } else {
      AppendUtf8(bytes, IsSurrogate(unit) ? kReplacement : char32_t{unit});
    }
  }
  return bytes;
}

}  // namespace folivar
