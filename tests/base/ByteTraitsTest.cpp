#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "folivar/base/ByteTraits.h"

namespace folivar::test {
namespace {

// Every byte value at every place of texts of many lengths: whole steps of sixteen, and the rest.
TEST(ByteTraits, TellOfAByteWhereverItStands) {
  for (const std::size_t length : {1U, 7U, 16U, 17U, 33U, 80U}) {
    for (std::size_t place = 0; place < length; ++place) {
      for (int value = 0; value < 256; ++value) {
        std::string text(length, 'x');
        text[place] = static_cast<char>(value);
        const ByteTraits traits = TraitsOf(text);
        EXPECT_EQ(traits.hasHighBytes, value >= 0x80) << value;
        EXPECT_EQ(traits.hasControls, value < 0x20) << value;
        EXPECT_EQ(traits.hasEscapes, value == '\\' || value == '(' || value == ')') << value;
      }
    }
  }
}

TEST(ByteTraits, TheFirstEscapeIsFoundWhereverItStands) {
  for (const std::size_t length : {1U, 7U, 8U, 17U, 33U}) {
    for (std::size_t place = 0; place < length; ++place) {
      for (int value = 0; value < 256; ++value) {
        const char byte = static_cast<char>(value);
        std::string text(length, 'x');
        text[place] = byte;
        text += '(';
        const bool isEscaped = byte == '\\' || byte == '(' || byte == ')';
        EXPECT_EQ(FindEscape(text, 0), isEscaped ? place : length) << value;
        EXPECT_EQ(FindEscape(text, place + 1), length) << value;
        EXPECT_EQ(FindEscape(text, length + 1), length + 1);
      }
    }
  }
  EXPECT_EQ(FindEscape("text", 0), 4U);
}

TEST(ByteTraits, NoTextHasNone) {
  const ByteTraits traits = TraitsOf("");
  EXPECT_FALSE(traits.hasHighBytes);
  EXPECT_FALSE(traits.hasControls);
  EXPECT_FALSE(traits.hasEscapes);
}

}  // namespace
}  // namespace folivar::test
