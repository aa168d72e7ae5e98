#include <gtest/gtest.h>
#include <iconv.h>

#include <array>
#include <bit>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <initializer_list>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "folivar/base/Error.h"
#include "folivar/base/Utf8.h"
#include "tests/support/Random.h"

namespace folivar::test {
namespace {

// What the system's iconv makes of the bytes: UTF-16, or where the first sequence begins that is no
// UTF-8.
struct Decoded {
  std::u16string units;
  std::optional<std::size_t> invalidAt;

  friend bool operator==(const Decoded&, const Decoded&) = default;
};

std::ostream& operator<<(std::ostream& out, const Decoded& decoded) {
  if (decoded.invalidAt) return out << "invalid at " << *decoded.invalidAt;
  return out << decoded.units.size() << " units";
}

class Iconv {
 public:
  Iconv() {
    constexpr bool kIsLittle = std::endian::native == std::endian::little;
    handle_ = iconv_open(kIsLittle ? "UTF-16LE" : "UTF-16BE", "UTF-8");
    if (handle_ == iconv_t(-1)) throw std::runtime_error("iconv cannot convert UTF-8");
  }
  ~Iconv() { iconv_close(handle_); }
  Iconv(const Iconv&) = delete;
  Iconv& operator=(const Iconv&) = delete;

  Decoded Decode(std::string bytes) const {
    iconv(handle_, nullptr, nullptr, nullptr, nullptr);
    Decoded decoded;
    decoded.units.resize(bytes.size());
    char* in = bytes.data();
    std::size_t inLeft = bytes.size();
    char* out = reinterpret_cast<char*>(decoded.units.data());
    std::size_t outLeft = decoded.units.size() * sizeof(char16_t);
    // E2BIG cannot be: no sequence gives more units than it has bytes.
    if (iconv(handle_, &in, &inLeft, &out, &outLeft) == static_cast<std::size_t>(-1)) {
      if (errno != EILSEQ && errno != EINVAL) throw std::runtime_error(std::strerror(errno));
      return {u"", bytes.size() - inLeft};
    }
    decoded.units.resize(decoded.units.size() - outLeft / sizeof(char16_t));
    return decoded;
  }

 private:
  iconv_t handle_;
};

Decoded DecodedByFolivar(std::string_view bytes) {
  try {
    return {Utf16FromUtf8(bytes), std::nullopt};
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), Error::kInvalidArgument);
    const std::string text = error.what();
    return {u"", std::stoul(text.substr(text.find("position ") + 9))};
  }
}

std::string Hex(std::string_view bytes) {
  std::string text;
  for (const char byte : bytes) {
    const auto value = static_cast<unsigned char>(byte);
    text += {' ', "0123456789ABCDEF"[value / 16], "0123456789ABCDEF"[value % 16]};
  }
  return text;
}

class Utf8 : public testing::Test {
 protected:
  void ExpectDecodesAsIconv(const std::string& bytes) {
    const Decoded expected = iconv_.Decode(bytes);
    const Decoded found = DecodedByFolivar(bytes);
    // In a million sequences, the first few that differ tell enough.
    if (!(found == expected) && ++failures_ <= 20) {
      ADD_FAILURE() << Hex(bytes) << ": expected " << expected << ", found " << found;
    }
  }

  // Whether the bytes are taken; where they are not valid matters in the tests of the position.
  void ExpectValidAsIconv(const std::string& bytes) {
    Decoded expected = iconv_.Decode(bytes);
    Decoded found = DecodedByFolivar(bytes);
    if (expected.invalidAt) expected.invalidAt = 0;
    if (found.invalidAt) found.invalidAt = 0;
    if (!(found == expected) && ++failures_ <= 20) {
      ADD_FAILURE() << Hex(bytes) << ": expected " << expected << ", found " << found;
    }
  }

 private:
  Iconv iconv_;
  int failures_ = 0;
};

// Bytes at the edges of what may follow a first byte.
constexpr std::array<unsigned char, 13> kEdges = {0x00, 0x41, 0x7F, 0x80, 0x8F, 0x90, 0x9F,
                                                  0xA0, 0xBF, 0xC0, 0xE0, 0xF0, 0xFF};

std::string Bytes(std::initializer_list<int> values) {
  std::string bytes;
  for (const int value : values) bytes += static_cast<char>(value);
  return bytes;
}

TEST_F(Utf8, TakesOneAndTwoBytesAsIconvDoes) {
  ExpectValidAsIconv("");
  for (int a = 0; a < 256; ++a) {
    ExpectValidAsIconv(Bytes({a}));
    for (int b = 0; b < 256; ++b) ExpectValidAsIconv(Bytes({a, b}));
  }
}

TEST_F(Utf8, TakesThreeBytesAsIconvDoes) {
  for (int a = 0xC0; a < 256; ++a) {
    for (int b = 0; b < 256; ++b) {
      for (const int c : kEdges) ExpectValidAsIconv(Bytes({a, b, c}));
    }
  }
}

TEST_F(Utf8, TakesFourBytesAsIconvDoes) {
  for (int a = 0xEF; a < 0xFA; ++a) {
    for (int b = 0; b < 256; ++b) {
      for (const int c : {0x41, 0x7F, 0x80, 0xBF, 0xC0}) {
        for (const int d : {0x41, 0x7F, 0x80, 0xBF, 0xC0}) ExpectValidAsIconv(Bytes({a, b, c, d}));
      }
    }
  }
}

TEST_F(Utf8, TakesEveryCharacter) {
  for (char32_t character = 0; character <= 0x10FFFF; character += 7) {
    if (character >= 0xD800 && character <= 0xDFFF) continue;
    std::u16string units;
    if (character < 0x10000) {
      units = {static_cast<char16_t>(character)};
    } else {
      units = {static_cast<char16_t>(0xD7C0 + (character >> 10)),
               static_cast<char16_t>(0xDC00 + (character & 0x3FF))};
    }
    const std::string bytes = Utf8FromUtf16(units);
    ASSERT_EQ(Utf16FromUtf8(bytes), units);
    ExpectDecodesAsIconv(bytes);
  }
}

TEST_F(Utf8, TakesRandomBytesAsIconvDoes) {
  Random random;
  SCOPED_TRACE(random.Trace());
  const std::array<std::string, 8> pieces = {"a",        "\u00E9", "\u20AC", "\U0001F600",
                                             "\xED\xA0", "\xC3",   "\x80",   "\xF4\x90"};
  for (int round = 0; round < 20'000; ++round) {
    std::string bytes;
    for (std::size_t count = random.Below(6); count > 0; --count) {
      // Mostly valid, so that long texts are taken too.
      const std::size_t piece = random.Below(random.Chance(20) ? pieces.size() : 4);
      bytes += random.Chance(95) ? pieces[piece] : std::string(1, static_cast<char>(random.Bits()));
    }
    ExpectValidAsIconv(bytes);
  }
}

TEST_F(Utf8, NamesWhereTheFirstInvalidSequenceBegins) {
  ExpectDecodesAsIconv("\x80");
  ExpectDecodesAsIconv("abc\x80");
  ExpectDecodesAsIconv("abc\xFF");
  ExpectDecodesAsIconv("\u20AC\xC0\x80");          // longer than need be
  ExpectDecodesAsIconv("\u20AC\xE0\x80\x80");      // longer than need be
  ExpectDecodesAsIconv("\u20AC\xED\xA0\x80");      // a surrogate
  ExpectDecodesAsIconv("\u20AC\xF4\x90\x80\x80");  // above U+10FFFF
  ExpectDecodesAsIconv("\u20AC\xE2\x82");          // ends too early
  ExpectDecodesAsIconv("ab\xC3");                  // ends too early
}

// The sequence is what is not UTF-8, not the letter behind it.
TEST_F(Utf8, NamesTheBeginningOfASequenceThatAnotherCharacterBreaksOff) {
  ExpectDecodesAsIconv("ab\xC3z");
  ExpectDecodesAsIconv("\xE2\x82z");
  ExpectDecodesAsIconv("\u00E9\xF0\x9F\x98z");
  ExpectDecodesAsIconv("\xE2\xE2\x82\xAC");
}

TEST_F(Utf8, SaysThatThePositionCountsFrom0) {
  try {
    Utf16FromUtf8("caf\xE9");
    FAIL() << "taken";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), Error::kInvalidArgument);
    EXPECT_EQ(std::string(error.what()),
              "text is not UTF-8: invalid byte at position 3 (counted from 0)");
  }
}

TEST_F(Utf8, WritesLoneSurrogatesAsReplacementCharacters) {
  EXPECT_EQ(Utf8FromUtf16({}), "");
  EXPECT_EQ(Utf8FromUtf16(std::u16string{0xD800}), "\uFFFD");
  EXPECT_EQ(Utf8FromUtf16(std::u16string{0xDFFF, u'a'}), "\uFFFDa");
  EXPECT_EQ(Utf8FromUtf16(std::u16string{0xD800, 0xD800, 0xDC00}), "\uFFFD\U00010000");
  EXPECT_EQ(Utf8FromUtf16(std::u16string{0xDC00, 0xD800}), "\uFFFD\uFFFD");
}

}  // namespace
}  // namespace folivar::test
