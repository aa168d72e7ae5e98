#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "folivar/drawing/TextLines.h"
#include "tests/support/Random.h"

namespace folivar::test {
namespace {

using Lines = std::vector<std::string>;

Lines LinesOf(std::string_view bytes) {
  Lines lines;
  for (const std::string_view line : TextLines(bytes)) lines.emplace_back(line);
  return lines;
}

TEST(TextLines, ATextWithoutALineEndIsOneLine) {
  EXPECT_EQ(LinesOf("one line"), Lines{"one line"});
  EXPECT_EQ(LinesOf(""), Lines{""});
  EXPECT_EQ(LinesOf(std::string_view()), Lines{""});
}

TEST(TextLines, EndsLinesAtEachOfTheThreeLineEnds) {
  EXPECT_EQ(LinesOf("a\nb\r\nc\rd"), (Lines{"a", "b", "c", "d"}));
  EXPECT_EQ(LinesOf("a\n\nb"), (Lines{"a", "", "b"}));
  EXPECT_EQ(LinesOf("a\r\rb"), (Lines{"a", "", "b"}));
  EXPECT_EQ(LinesOf("a\n\rb"), (Lines{"a", "", "b"})) << "the wrong way round: two line ends";
}

TEST(TextLines, ALineEndAtTheEndBeginsAnEmptyLine) {
  EXPECT_EQ(LinesOf("a\n"), (Lines{"a", ""}));
  EXPECT_EQ(LinesOf("a\r\n"), (Lines{"a", ""}));
  EXPECT_EQ(LinesOf("a\r"), (Lines{"a", ""}));
  EXPECT_EQ(LinesOf("\n"), (Lines{"", ""}));
}

TEST(TextLines, FirstIsTheFirstLine) {
  EXPECT_EQ(TextLines("one\ntwo").First(), "one");
  EXPECT_EQ(TextLines("one").First(), "one");
  EXPECT_EQ(TextLines("\none").First(), "");
  EXPECT_EQ(TextLines("").First(), "");
}

// Byte by byte.
Lines NaiveLines(std::string_view bytes) {
  Lines lines = {""};
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') continue;
    if (bytes[i] == '\r' || bytes[i] == '\n') {
      lines.emplace_back();
    } else {
      lines.back() += bytes[i];
    }
  }
  return lines;
}

TEST(TextLines, AgreesWithANaiveSplit) {
  Random random;
  SCOPED_TRACE(random.Trace());
  for (int round = 0; round < 20'000; ++round) {
    std::string bytes;
    for (std::size_t size = random.Below(12); size > 0; --size) {
      bytes += "a\r\n\0"[random.Below(4)];
    }
    const Lines expected = NaiveLines(bytes);
    const TextLines lines(bytes);
    ASSERT_EQ(LinesOf(bytes), expected) << testing::PrintToString(bytes);
    ASSERT_EQ(lines.Count(), expected.size()) << testing::PrintToString(bytes);
    ASSERT_EQ(lines.First(), expected.front()) << testing::PrintToString(bytes);
  }
}

}  // namespace
}  // namespace folivar::test
