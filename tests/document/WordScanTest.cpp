#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "folivar/document/WordScan.h"

namespace folivar::test {
namespace {

// Every byte value at every place of texts of every length around one word, against a plain loop.
TEST(WordScan, FindsAByteWhereverItStands) {
  for (std::size_t length = 0; length <= 17; ++length) {
    for (std::size_t place = 0; place < length; ++place) {
      for (int value = 0; value < 256; ++value) {
        const char byte = static_cast<char>(value);
        std::string text(length, 'x');
        text[place] = byte;
        EXPECT_EQ(AnyWord(text, wordscan::HasHighByte), value >= 0x80);
        EXPECT_EQ(AnyWord(text, [](auto word) { return wordscan::HasByteBelow(word, ' '); }),
                  value < ' ');
        EXPECT_EQ(AnyWord(text, [](auto word) { return wordscan::HasByte(word, '('); }),
                  byte == '(');
      }
    }
  }
}

TEST(WordScan, FindsNothingInNoText) {
  EXPECT_FALSE(AnyWord("", [](auto) { return std::uint64_t{1}; }));
}

}  // namespace
}  // namespace folivar::test
