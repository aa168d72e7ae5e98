#include <gtest/gtest.h>

#include <memory>
#include <utility>

#include "folivar/fonts/PDFFont.h"
#include "folivar/textbox/MeasuredFormat.h"
#include "tests/support/Content.h"
#include "tests/support/StandardFont.h"

namespace folivar::test {
namespace {

TEXT_FORMAT_RANGE RunIn(std::shared_ptr<PDFFont> font) {
  TEXT_FORMAT_RANGE run;
  run.Font = RunFont(std::move(font));
  return run;
}

// Courier's characters are 600 wide; its box reaches from -250 to 805.
TEST(MeasuredFormat, HasTheMeasuresOfItsFont) {
  const auto font = StandardFont("Courier", 20);
  TEXT_FORMAT_RANGE run = RunIn(font);
  run.Color = 7;
  const MeasuredFormat plain(run, 3);
  EXPECT_EQ(plain.Number(), 3U);
  EXPECT_EQ(plain.Color(), 7);
  EXPECT_EQ(&plain.Font(), font.get());
  EXPECT_FALSE(plain.IsDecorated());
  EXPECT_FALSE(plain.IsRaisedOrLowered());
  EXPECT_FLOAT_EQ(plain.Leading(), 21.1F);
  EXPECT_EQ(plain.Width('x'), 600);
  EXPECT_FLOAT_EQ(plain.Shown(600), 12);
  EXPECT_FLOAT_EQ(plain.Width("xx"), 24);

  font->SetUnderline(true);
  font->SetSubscript(true);
  const MeasuredFormat lowered(run, 0);
  EXPECT_TRUE(lowered.IsDecorated());
  EXPECT_TRUE(lowered.IsRaisedOrLowered());
  EXPECT_FLOAT_EQ(lowered.Leading(), 21.1F);
  EXPECT_FLOAT_EQ(lowered.Shown(600), 7.8F);
  EXPECT_FLOAT_EQ(lowered.Width("xx"), 15.6F);
}

TEST(MeasuredFormat, IsThatOfRunsInItsFontAndColour) {
  TEXT_FORMAT_RANGE run = RunIn(StandardFont());
  const MeasuredFormat format(run, 0);
  run.Length = 5;
  run.Alignment = alignRight;
  EXPECT_TRUE(format.IsOf(run));
  run.Color = 7;
  EXPECT_FALSE(format.IsOf(run));
  EXPECT_FALSE(format.IsOf(RunIn(StandardFont())));
}

TEST(MeasuredFormat, MeasuresBeyondASingleRaise6) {
  const TEXT_FORMAT_RANGE run = RunIn(StandardFont("Courier", 3e38F));
  EXPECT_EQ(ErrorNumberOf([&] { MeasuredFormat(run, 0); }), 6);
}

}  // namespace
}  // namespace folivar::test
