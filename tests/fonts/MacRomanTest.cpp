#include <gtest/gtest.h>
#include <iconv.h>

#include <cstddef>
#include <map>
#include <optional>
#include <stdexcept>

#include "folivar/fonts/MacRoman.h"

namespace folivar::test {
namespace {

// As the C library converts it.
char16_t CharacterInMacintosh(unsigned char code) {
  const iconv_t converter = iconv_open("UTF-16LE", "MACINTOSH");
  if (converter == reinterpret_cast<iconv_t>(-1)) throw std::runtime_error("iconv lacks MACINTOSH");
  char in = static_cast<char>(code);
  char* inPlace = &in;
  std::size_t inLeft = 1;
  unsigned char out[2] = {};
  char* outPlace = reinterpret_cast<char*>(out);
  std::size_t outLeft = sizeof out;
  iconv(converter, &inPlace, &inLeft, &outPlace, &outLeft);
  iconv_close(converter);
  return static_cast<char16_t>(out[0] | out[1] << 8);
}

// What the C library has as it was before the euro: the increment, the euro and Apple's sign.
const std::map<unsigned char, char16_t> kNewer = {{0xC6, 0x2206}, {0xDB, 0x20AC}, {0xF0, 0xF8FF}};

TEST(MacRoman, HasTheCharactersThatTheSystemHas) {
  for (unsigned code = 0; code < 256; ++code) {
    SCOPED_TRACE(code);
    const auto byte = static_cast<unsigned char>(code);
    const auto newer = kNewer.find(byte);
    const char16_t expected = newer == kNewer.end() ? CharacterInMacintosh(byte) : newer->second;
    EXPECT_EQ(MacRomanCharacter(byte), expected);
    EXPECT_EQ(MacRomanCode(MacRomanCharacter(byte)), byte);
  }
}

TEST(MacRoman, ACharacterThatItLacksHasNoCode) {
  for (const char16_t character : {u'\u0080', u'\u00D0', u'\u0160', u'\uFFFF'}) {
    EXPECT_EQ(MacRomanCode(character), std::nullopt) << static_cast<unsigned>(character);
  }
}

}  // namespace
}  // namespace folivar::test
