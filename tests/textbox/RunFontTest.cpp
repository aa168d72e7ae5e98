#include <gtest/gtest.h>

#include "folivar/textbox/RunFont.h"
#include "tests/support/StandardFont.h"

namespace folivar::test {
namespace {

TEST(RunFont, ClonesThatNobodyHasSeenAreOneObject) {
  RunFont font = RunFont::CloneOf(*StandardFont());
  RunFont clone = font.Clone();
  EXPECT_EQ(&*clone, &*font);
}

TEST(RunFont, ACloneIsOneOfItsOwnOnceItIsSeen) {
  RunFont font = RunFont::CloneOf(*StandardFont());
  RunFont clone = font.Clone();
  const auto seen = clone.HandOut();
  EXPECT_EQ(clone.HandOut(), seen) << "the same each time";
  EXPECT_NE(font.HandOut(), seen);
  seen->SetSize(20);
  EXPECT_EQ(clone->Size(), 20);
  EXPECT_EQ(font->Size(), 10);
}

TEST(RunFont, ACloneIsOneOfItsOwnOnceItIsChanged) {
  RunFont font = RunFont::CloneOf(*StandardFont());
  RunFont clone = font.Clone();
  clone.Own().SetSize(20);
  clone.Own().SetUnderline(true);
  EXPECT_EQ(clone->Size(), 20);
  EXPECT_TRUE(clone->Underline());
  EXPECT_EQ(font->Size(), 10);
}

TEST(RunFont, ACloneOfWhatTheHostHasIsOneOfItsOwnAtOnce) {
  const auto seen = StandardFont();
  RunFont font(seen);
  EXPECT_EQ(font.HandOut(), seen);
  RunFont clone = font.Clone();
  seen->SetSize(20);
  EXPECT_EQ(font->Size(), 20);
  EXPECT_EQ(clone->Size(), 10);
  EXPECT_NE(clone.HandOut(), seen);
}

TEST(RunFont, WhatTheHostHasIsChangedForAllThatShareIt) {
  const auto seen = StandardFont();
  RunFont font(seen);
  const RunFont sharing = font;
  font.Own().SetSize(20);
  EXPECT_EQ(seen->Size(), 20);
  EXPECT_EQ(sharing->Size(), 20);
}

TEST(RunFont, TheLastOfItsKindNeedsNoCopy) {
  RunFont font = RunFont::CloneOf(*StandardFont());
  const PDFFont* object = &*font;
  font.Own().SetSize(20);
  EXPECT_EQ(font.HandOut().get(), object);
}

}  // namespace
}  // namespace folivar::test
