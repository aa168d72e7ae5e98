#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>

#include "folivar/base/AnsiText.h"
#include "folivar/base/Error.h"
#include "tests/support/Content.h"
#include "tests/support/TestFiles.h"
#include "tests/support/Tools.h"

namespace folivar::test {
namespace {

std::string BytesOf(TextView text) { return std::string(AnsiText(text).Bytes()); }

// Code page 1252 as iconv has it: the characters beyond U+00FF and their bytes.
std::map<char16_t, unsigned char> CodePage1252() {
  std::map<char16_t, unsigned char> table;
  const auto path = OutputPath("byte");
  for (int byte = 0x80; byte < 0x100; ++byte) {
    WriteBytes(path, std::string(1, static_cast<char>(byte)));
    const ToolResult iconv = test::Run({"iconv", "-f", "CP1252", "-t", "UTF-16BE", path});
    if (iconv.status != 0) continue;  // the page has no character for five of the bytes
    const auto unit = static_cast<char16_t>(static_cast<unsigned char>(iconv.out.at(0)) * 256 +
                                            static_cast<unsigned char>(iconv.out.at(1)));
    if (unit > 0xFF) table[unit] = static_cast<unsigned char>(byte);
  }
  return table;
}

TEST(AnsiByte, IsTheByteOfWindowsCodePage1252ForEveryUnit) {
  const std::map<char16_t, unsigned char> codePage = CodePage1252();
  ASSERT_EQ(codePage.size(), 27U);
  for (unsigned unit = 0x100; unit <= 0xFFFF; ++unit) {
    const auto row = codePage.find(static_cast<char16_t>(unit));
    const int expected = row == codePage.end() ? '?' : row->second;
    EXPECT_EQ(static_cast<unsigned char>(AnsiByte(static_cast<char16_t>(unit))), expected)
        << std::hex << unit;
  }
}

TEST(AnsiByte, IsTheByteOfTheSameValueBelow256) {
  for (unsigned unit = 0; unit < 0x100; ++unit) {
    EXPECT_EQ(static_cast<unsigned char>(AnsiByte(static_cast<char16_t>(unit))), unit);
  }
}

TEST(AnsiCharacter, IsTheCharacterOfWindowsCodePage1252ForEveryByte) {
  std::map<unsigned char, char16_t> characters;
  for (const auto& [unit, byte] : CodePage1252()) characters[byte] = unit;
  for (unsigned byte = 0; byte < 0x100; ++byte) {
    const auto row = characters.find(static_cast<unsigned char>(byte));
    EXPECT_EQ(AnsiCharacter(static_cast<char>(byte)),
              row == characters.end() ? static_cast<char16_t>(byte) : row->second)
        << std::hex << byte;
  }
}

TEST(AnsiBytesToText, IsTheCharactersOfWindowsCodePage1252) {
  EXPECT_EQ(AnsiBytesToText("\xE9\x80\x93x\x94\x96"), Text("\u00E9\u20AC\u201Cx\u201D\u2013"));
  EXPECT_EQ(AnsiBytesToText("\x81"), Text("\u0081")) << "a byte without a character";
  EXPECT_EQ(AnsiBytesToText(""), Text());
}

TEST(AnsiText, KeepsAscii) {
  EXPECT_EQ(BytesOf(""), "");
  EXPECT_EQ(BytesOf("plain (text)\\\n\x7F"), "plain (text)\\\n\x7F");
  EXPECT_EQ(BytesOf(u"plain"), "plain");
  EXPECT_EQ(BytesOf(std::string_view("a\0b", 3)), std::string_view("a\0b", 3));
}

TEST(AnsiText, ConvertsUtf8AndUtf16Alike) {
  EXPECT_EQ(BytesOf("\u00E9\u20AC\u201Cx\u201D\u2013"), "\xE9\x80\x93x\x94\x96");
  EXPECT_EQ(BytesOf(u"\u00E9\u20AC\u201Cx\u201D\u2013"), "\xE9\x80\x93x\x94\x96");
}

TEST(AnsiText, IsOneByteForEachUtf16Unit) {
  EXPECT_EQ(BytesOf("\U0001F600"),
            "?"
            "?")
      << "a surrogate pair";
  EXPECT_EQ(BytesOf(std::u16string{0xD800, u'a'}), "?a") << "a lone surrogate";
  EXPECT_EQ(BytesOf("\u0394\u4E2D"),
            "?"
            "?");
}

TEST(AnsiText, ConvertsTextsOfAnyLength) {
  for (const std::size_t length : {1U, 255U, 256U, 257U, 10'000U}) {
    const std::u16string euros(length, u'\u20AC');
    EXPECT_EQ(BytesOf(euros), std::string(length, '\x80')) << length;
    EXPECT_EQ(BytesOf(Text(euros).Utf8()), std::string(length, '\x80')) << length;
    EXPECT_EQ(BytesOf(std::string(length, 'a')), std::string(length, 'a')) << length;
  }
}

TEST(AnsiText, Raises5ForWhatIsNotUtf8AndNamesThePosition) {
  EXPECT_EQ(ErrorNumberOf([] { AnsiText text("abc\xFF"); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorTextOf([] { AnsiText text("abc\xFF"); }),
            "text is not UTF-8: invalid byte at position 3 (counted from 0)");
}

}  // namespace
}  // namespace folivar::test
