#include <gtest/gtest.h>

#include "folivar/textbox/TextBoxFrame.h"

namespace folivar::test {
namespace {

TextBoxFrame FrameWith(float borderWidth, float dashOn, float dashOff) {
  TextBoxFrame frame;
  frame.borderWidth = borderWidth;
  frame.dashOn = dashOn;
  frame.dashOff = dashOff;
  return frame;
}

TEST(TextBoxFrame, HasABorderOfOnePointAtFirst) {
  const TextBoxFrame frame;
  EXPECT_EQ(frame.borderWidth, 1);
  EXPECT_TRUE(frame.HasBorder());
}

TEST(TextBoxFrame, ABorderWithoutAWidthIsNone) {
  EXPECT_FALSE(FrameWith(0, 1, 0).HasBorder());
  EXPECT_FALSE(FrameWith(0, 3, 2).HasBorder());
}

TEST(TextBoxFrame, ABorderOfGapsAloneIsNone) {
  EXPECT_TRUE(FrameWith(1, 3, 2).HasBorder());
  EXPECT_FALSE(FrameWith(1, 0, 2).HasBorder());
  EXPECT_TRUE(FrameWith(1, 0, 0).HasBorder()) << "neither dashes nor gaps: no pattern";
}

}  // namespace
}  // namespace folivar::test
