#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>

#include "folivar/base/Error.h"
#include "folivar/base/Text.h"
#include "tests/support/Content.h"

namespace folivar::test {
namespace {

// A host's own string class.
struct HostString {
  operator std::string_view() const { return "host"; }
};
struct HostString16 {
  operator std::u16string_view() const { return u"host"; }
};

TEST(TextView, TakesEveryKindOfString) {
  const char array[] = "caf\u00E9";
  const char16_t array16[] = u"caf\u00E9";
  const std::u16string expected = u"caf\u00E9";
  EXPECT_EQ(Text("caf\u00E9").Utf16(), expected);
  EXPECT_EQ(Text(array).Utf16(), expected);
  EXPECT_EQ(Text(std::string(array)).Utf16(), expected);
  EXPECT_EQ(Text(std::string_view(array)).Utf16(), expected);
  EXPECT_EQ(Text(u8"caf\u00E9").Utf16(), expected);
  EXPECT_EQ(Text(std::u8string(u8"caf\u00E9")).Utf16(), expected);
  EXPECT_EQ(Text(std::u8string_view(u8"caf\u00E9")).Utf16(), expected);
  EXPECT_EQ(Text(u"caf\u00E9").Utf16(), expected);
  EXPECT_EQ(Text(array16).Utf16(), expected);
  EXPECT_EQ(Text(std::u16string(array16)).Utf16(), expected);
  EXPECT_EQ(Text(std::u16string_view(array16)).Utf16(), expected);
  EXPECT_EQ(Text(HostString()).Utf16(), u"host");
  EXPECT_EQ(Text(HostString16()).Utf16(), u"host");
  EXPECT_EQ(Text(TextView(Text("again"))).Utf16(), u"again");
}

TEST(TextView, TakesAPath) {
  const std::filesystem::path path = std::filesystem::path("folder") / u8"Gr\u00FC\u00DFe.pdf";
  EXPECT_EQ(Text(path).Utf16(), u"folder/Gr\u00FC\u00DFe.pdf");
  EXPECT_TRUE(TextView(std::filesystem::path()).IsEmpty());
}

TEST(Text, IsWrittenToAStreamInUtf8) {
  std::ostringstream stream;
  stream << Text(u"caf\u00E9 \U0001F600") << '.';
  EXPECT_EQ(stream.str(), "caf\u00E9 \U0001F600.");
}

TEST(TextView, ANullPointerIsTheEmptyText) {
  EXPECT_TRUE(TextView(static_cast<const char*>(nullptr)).IsEmpty());
  EXPECT_TRUE(TextView(static_cast<const char8_t*>(nullptr)).IsEmpty());
  EXPECT_TRUE(TextView(static_cast<const char16_t*>(nullptr)).IsEmpty());
  EXPECT_TRUE(TextView().IsEmpty());
  EXPECT_TRUE(Text().IsEmpty());
  EXPECT_EQ(Text(static_cast<const char*>(nullptr)), "");
}

TEST(TextView, GivesTheFormItCameIn) {
  EXPECT_FALSE(TextView("a").IsUtf16());
  EXPECT_EQ(TextView("a").Utf8(), "a");
  EXPECT_EQ(TextView("a").Utf16(), u"");
  EXPECT_TRUE(TextView(u"a").IsUtf16());
  EXPECT_EQ(TextView(u"a").Utf16(), u"a");
  EXPECT_EQ(TextView(u"a").Utf8(), "");
}

TEST(TextView, IsCheckedWhereItIsUsed) {
  const TextView view("\xFF");
  EXPECT_FALSE(view.IsEmpty());
  EXPECT_EQ(ErrorNumberOf([&] { Text text(view); }), Error::kInvalidArgument);
}

TEST(Text, KeepsCharactersBeyondTheBasicPlaneAsSurrogatePairs) {
  const Text text("\U0001F600");
  EXPECT_EQ(text.Utf16(), (std::u16string{0xD83D, 0xDE00}));
  EXPECT_EQ(text.Utf8(), "\U0001F600");
  EXPECT_EQ(Text("\U00010000").Utf16(), (std::u16string{0xD800, 0xDC00}));
  EXPECT_EQ(Text("\U0010FFFF").Utf16(), (std::u16string{0xDBFF, 0xDFFF}));
}

TEST(Text, KeepsZerosInsideAText) {
  const Text text(std::string_view("a\0b", 3));
  EXPECT_EQ(text.Utf16(), std::u16string_view(u"a\0b", 3));
  EXPECT_EQ(text.Utf8(), std::string_view("a\0b", 3));
}

TEST(Text, TakesLoneSurrogatesAndShowsThemAsReplacementCharacters) {
  const std::u16string lone = {u'a', 0xD800, u'b', 0xDC00, 0xD800};
  EXPECT_EQ(Text(lone).Utf16(), lone);
  EXPECT_EQ(Text(lone).Utf8(), "a\uFFFDb\uFFFD\uFFFD");
}

TEST(Text, TellsLetterCasesApart) {
  EXPECT_EQ(Text("abc"), Text(u"abc"));
  EXPECT_NE(Text("abc"), Text("Abc"));
  EXPECT_EQ(Text("abc"), "abc");
  EXPECT_EQ(Text("\u00E9"), u"\u00E9");
  EXPECT_FALSE(Text("abc") == "abcd");
}

TEST(Text, TakesUnitsAsTheyAre) {
  const std::u16string units(1000, u'\xD800');
  std::u16string given = units;
  const char16_t* const data = given.data();
  const Text text = Text::Of(std::move(given));
  EXPECT_EQ(text.Utf16(), units);
  EXPECT_EQ(text.Utf16().data(), data) << "not copied";
}

}  // namespace
}  // namespace folivar::test
