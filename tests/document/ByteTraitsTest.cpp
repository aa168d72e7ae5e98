#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "folivar/document/ByteTraits.h"

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

TEST(ByteTraits, NoTextHasNone) {
  const ByteTraits traits = TraitsOf("");
  EXPECT_FALSE(traits.hasHighBytes);
  EXPECT_FALSE(traits.hasControls);
  EXPECT_FALSE(traits.hasEscapes);
}

}  // namespace
}  // namespace folivar::test
