#pragma once

#include <array>
#include <string>
#include <string_view>

#include "folivar/base/ByteTraits.h"
#include "folivar/base/Text.h"

namespace folivar {

// The byte that stands for a UTF-16 unit in the file and in the metrics tables: U+0000 to U+00FF
// are the byte of the same value, what else Windows code page 1252 has is its byte there (U+20AC,
// the euro sign, is 0x80), and anything else is "?".
char AnsiByte(char16_t unit);

// The bytes of all units; returns the end. `out` has room for one byte each.
char* PutAnsi(char* out, std::u16string_view units);

// The other way round: the character that a byte stands for in Windows code page 1252; for the five
// bytes that have none (0x81, say) the one of the same value.
char16_t AnsiCharacter(char byte);
Text AnsiBytesToText(std::string_view bytes);

// A text as the bytes that go into the file, one for each UTF-16 unit. Plain ASCII is not copied:
// the bytes may be the caller's own, so the text must outlive this object.
class AnsiText {
 public:
  // Raises 5 for text that is not UTF-8.
  explicit AnsiText(TextView text);
  AnsiText(const AnsiText&) = delete;
  AnsiText& operator=(const AnsiText&) = delete;

  std::string_view Bytes() const { return bytes_; }
  const ByteTraits& Traits() const { return traits_; }

 private:
  void Convert(std::u16string_view units);

  std::string_view bytes_;
  ByteTraits traits_;
  std::array<char, 256> short_;  // a line of text needs no allocation
  std::string long_;
};

}  // namespace folivar
