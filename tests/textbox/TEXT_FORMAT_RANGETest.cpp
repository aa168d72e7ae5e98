#include <gtest/gtest.h>

#include "folivar/fonts/PDFFont.h"
#include "folivar/textbox/TEXT_FORMAT_RANGE.h"
#include "tests/support/StandardFont.h"

namespace folivar::test {
namespace {

TEXT_FORMAT_RANGE RunIn(std::shared_ptr<PDFFont> font) {
  TEXT_FORMAT_RANGE run;
  run.Font = RunFont(std::move(font));
  return run;
}

TEST(TEXT_FORMAT_RANGE, StartsBlackLeftAndEmpty) {
  const TEXT_FORMAT_RANGE run;
  EXPECT_EQ(run.Color, 0);
  EXPECT_EQ(run.Alignment, alignLeft);
  EXPECT_EQ(run.Length, 0);
}

TEST(TEXT_FORMAT_RANGE, ACopyHasAFontOfItsOwn) {
  TEXT_FORMAT_RANGE source = RunIn(StandardFont("Courier", 12));
  source.Font.Own().SetUnderline(true);
  source.Color = 7;
  source.Alignment = alignRight;
  source.Length = 5;
  TEXT_FORMAT_RANGE copy;
  copy.CopyFrom(source);
  EXPECT_NE(copy.Font.HandOut(), source.Font.HandOut());
  EXPECT_EQ(copy.Font->FontFace(), "Courier");
  EXPECT_EQ(copy.Font->Size(), 12);
  EXPECT_TRUE(copy.Font->Underline());
  EXPECT_EQ(copy.Color, 7);
  EXPECT_EQ(copy.Alignment, alignRight);
  EXPECT_EQ(copy.Length, 5);
  EXPECT_TRUE(copy.IsFormatEquivalent(source));
}

TEST(TEXT_FORMAT_RANGE, EveryPartOfTheFormatCountsAndTheLengthDoesNot) {
  const TEXT_FORMAT_RANGE run = RunIn(StandardFont());
  const auto differs = [&](auto change) {
    TEXT_FORMAT_RANGE other;
    other.CopyFrom(run);
    EXPECT_TRUE(run.IsFormatEquivalent(other));
    change(other);
    return !run.IsFormatEquivalent(other);
  };
  EXPECT_FALSE(differs([](TEXT_FORMAT_RANGE& other) { other.Length = 3; }));
  EXPECT_TRUE(differs([](TEXT_FORMAT_RANGE& other) { other.Color = 1; }));
  EXPECT_TRUE(differs([](TEXT_FORMAT_RANGE& other) { other.Alignment = alignCenter; }));
  EXPECT_TRUE(differs([](TEXT_FORMAT_RANGE& other) { other.Font.Own().SetSize(11); }));
  EXPECT_TRUE(differs([](TEXT_FORMAT_RANGE& other) { other.Font.Own().SetUnderline(true); }));
  EXPECT_TRUE(differs([](TEXT_FORMAT_RANGE& other) { other.Font.Own().SetStrikeOut(true); }));
  EXPECT_TRUE(differs([](TEXT_FORMAT_RANGE& other) { other.Font.Own().SetSubscript(true); }));
  EXPECT_TRUE(differs([](TEXT_FORMAT_RANGE& other) { other.Font.Own().SetSuperscript(true); }));
  EXPECT_TRUE(differs([](TEXT_FORMAT_RANGE& other) {
    other.Font = RunFont(StandardFont("Helvetica-Bold", 10, "/F1"));
  }));
  EXPECT_FALSE(differs([](TEXT_FORMAT_RANGE& other) {
    other.Font = RunFont(StandardFont("Times-Roman", 10, "/F0"));
  })) << "faces are told apart by their resource names";
}

}  // namespace
}  // namespace folivar::test
