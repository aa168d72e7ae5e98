#include <gtest/gtest.h>

#include "folivar/drawing/ClipBox.h"

namespace folivar::test {
namespace {

TEST(ClipBox, ExtendsOnlyTheEdgesThatAPointLiesBeyond) {
  ClipBox box{0, 0, 0, 0};
  box.ExtendClipBox(30, 40);
  box.ExtendClipBox(10, 20);
  EXPECT_EQ(box.left, 0);
  EXPECT_EQ(box.bottom, 0);
  EXPECT_EQ(box.right, 30);
  EXPECT_EQ(box.top, 40);
  box.ExtendClipBox(-5, 50);
  box.ExtendClipBox(20, -7.5F);
  EXPECT_EQ(box.left, -5);
  EXPECT_EQ(box.bottom, -7.5F);
  EXPECT_EQ(box.right, 30);
  EXPECT_EQ(box.top, 50);
}

// Each edge looks at its own side alone.
TEST(ClipBox, EdgesInWrongOrderClose) {
  ClipBox box{100, 200, -100, -200};
  box.ExtendClipBox(1, 2);
  EXPECT_EQ(box.left, 1);
  EXPECT_EQ(box.bottom, 2);
  EXPECT_EQ(box.right, 1);
  EXPECT_EQ(box.top, 2);
}

}  // namespace
}  // namespace folivar::test
