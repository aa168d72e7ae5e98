#include <gtest/gtest.h>

#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "folivar/fonts/FontFileWriter.h"
#include "folivar/fonts/FontTableFields.h"
#include "tests/support/FontBuilder.h"

namespace folivar::test {
namespace {

constexpr std::uint32_t kVersion = 0x00010000;

void Add(FontFileWriter& writer, std::string_view tag, std::string_view bytes) {
  writer.Add(TagOf(tag), {reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()});
}

TEST(FontFileWriter, ListsTheTablesAndFillsThemUpToWholeWords) {
  FontFileWriter writer(kVersion, 2, 9);
  Add(writer, "last", {"\1\2\3\4\5", 5});
  Add(writer, "abcd", {"\0\0\0\7", 4});
  const std::string list = U32(kVersion) + U16(2) + U16(32) + U16(1) + U16(0) +        //
                           "last" + U32(0x01020304 + 0x05000000) + U32(44) + U32(5) +  //
                           "abcd" + U32(7) + U32(52) + U32(4);
  EXPECT_EQ(std::move(writer).Finish(),
            list + std::string("\1\2\3\4\5\0\0\0", 8) + std::string("\0\0\0\7", 4));
}

TEST(FontFileWriter, WritesTheNumbersThatReadersSearchBy) {
  struct Row {
    std::uint32_t count;
    std::uint32_t range;  // of the largest power of 2, in bytes
    std::uint32_t steps;  // its logarithm
    std::uint32_t shift;  // the bytes beyond the range
  };
  for (const Row& row : {Row{0, 0, 0, 0}, Row{1, 16, 0, 0}, Row{3, 32, 1, 16}, Row{4, 64, 2, 0},
                         Row{12, 128, 3, 64}}) {
    FontFileWriter writer(kVersion, row.count, 0);
    for (std::uint32_t i = 0; i < row.count; ++i) Add(writer, "none", "");
    EXPECT_EQ(std::move(writer).Finish().substr(4, 8),
              U16(row.count) + U16(row.range) + U16(row.steps) + U16(row.shift))
        << row.count;
  }
}

TEST(FontFileWriter, TheAdjustmentMakesTheSumOfTheFileComeOut) {
  std::string head = FontBuilder().tables.at("head");
  SetU32(head, 8, 0x12345678);  // of another file
  FontFileWriter writer(kVersion, 2, head.size() + 3);
  Add(writer, "head", head);
  Add(writer, "more", "abc");
  const std::string font = std::move(writer).Finish();
  EXPECT_EQ(ChecksumOf(font), 0xB1B0AFBA);
  SetU32(head, 8, 0);
  EXPECT_EQ(U32In(font, RecordOf(font, "head") + 4), ChecksumOf(head)) << "without it";
}

TEST(FontFileWriter, AHeadWithoutRoomForTheAdjustmentStaysAsItIs) {
  FontFileWriter writer(kVersion, 1, 8);
  Add(writer, "head", "12345678");
  const std::string font = std::move(writer).Finish();
  EXPECT_EQ(font.substr(12 + 16), "12345678");
}

}  // namespace
}  // namespace folivar::test
