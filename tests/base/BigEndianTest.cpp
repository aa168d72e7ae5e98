#include <gtest/gtest.h>

#include <array>
#include <string>

#include "folivar/base/BigEndian.h"

namespace folivar::test {
namespace {

constexpr std::array<unsigned char, 5> kBytes = {0x00, 0xFE, 0xDC, 0xBA, 0x98};

TEST(BigEndian, ReadsTheHighByteFirst) {
  EXPECT_EQ(U16At(kBytes, 0), 0x00FE);
  EXPECT_EQ(U16At(kBytes, 1), 0xFEDC);
  EXPECT_EQ(S16At(kBytes, 0), 0x00FE);
  EXPECT_EQ(S16At(kBytes, 1), -0x0124);
  EXPECT_EQ(U32At(kBytes, 1), 0xFEDCBA98);
}

TEST(BigEndian, AppendsTheHighByteFirst) {
  std::string bytes = "a";
  AppendU16(bytes, 0xFEDC);
  AppendU32(bytes, 0xFEDCBA98);
  EXPECT_EQ(bytes, "a\xFE\xDC\xFE\xDC\xBA\x98");
}

TEST(BigEndian, AppendsTheLowBytesOfWhatIsLarger) {
  std::string bytes;
  AppendU16(bytes, 0x12345678);
  EXPECT_EQ(bytes, "\x56\x78");
}

}  // namespace
}  // namespace folivar::test
