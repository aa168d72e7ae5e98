#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <vector>

#include "folivar/base/Error.h"
#include "folivar/textbox/LaidRuns.h"
#include "tests/support/Content.h"
#include "tests/support/StandardFont.h"

namespace folivar::test {
namespace {

TEXT_FORMAT_RANGE RunIn(const RunFont& font, std::int32_t length, std::int32_t color = 0) {
  TEXT_FORMAT_RANGE run;
  run.Font = font;
  run.Color = color;
  run.Length = length;
  return run;
}

RunList ListOf(std::vector<TEXT_FORMAT_RANGE> runs) {
  RunList list(runs.front());
  list.Replace(0, 1, runs);
  return list;
}

TEST(LaidRuns, ThoseWithoutTextAreLeftOut) {
  const RunFont font(StandardFont());
  const RunList list = ListOf({RunIn(font, 0), RunIn(font, 3), RunIn(font, 0), RunIn(font, 2)});
  const LaidRuns runs(list, 5);
  EXPECT_EQ(runs.begin()[0].end, 3U);
  EXPECT_EQ(runs.begin()[1].end, 5U);
}

TEST(LaidRuns, TheLastOneHasWhatIsLeftAndNoneGoesBeyondTheText) {
  const RunFont font(StandardFont());
  const RunList list = ListOf({RunIn(font, 3), RunIn(font, 2)});
  EXPECT_EQ(LaidRuns(list, 9).begin()[1].end, 9U);
  EXPECT_EQ(LaidRuns(list, 2).begin()[0].end, 2U);
}

TEST(LaidRuns, RunsOfOneFontAndColourShareAFormat) {
  const RunFont plain(StandardFont());
  RunFont other(StandardFont("Courier", 20));
  other.HandOut()->SetUnderline(true);
  other.HandOut()->SetSubscript(true);
  const RunList list =
      ListOf({RunIn(plain, 1), RunIn(other, 1), RunIn(plain, 1), RunIn(plain, 1, 7)});
  const LaidRuns runs(list, 4);
  ASSERT_EQ(runs.Formats().size(), 3U);
  EXPECT_EQ(runs.begin()[2].format, runs.begin()[0].format);
  EXPECT_EQ(runs.FormatOf(runs.begin()[3]).Color(), 7);
  const LaidFormat& format = runs.FormatOf(runs.begin()[1]);
  EXPECT_EQ(format.Number(), 1U);
  EXPECT_EQ(&format.Font(), other.HandOut().get());
  EXPECT_TRUE(format.IsDecorated());
  EXPECT_TRUE(format.IsRaisedOrLowered());
  EXPECT_FLOAT_EQ(format.Leading(), 21.1F);
  EXPECT_EQ(format.Width('x'), 600);
  EXPECT_FLOAT_EQ(format.Shown(600), 7.8F);
  EXPECT_FLOAT_EQ(format.Width("xx"), 15.6F);
}

// However many formats there are, each run has its own.
TEST(LaidRuns, EachRunHasItsFormat) {
  const RunFont font(StandardFont());
  std::vector<TEXT_FORMAT_RANGE> all;
  for (std::int32_t run = 0; run < 1000; ++run) all.push_back(RunIn(font, 1, run * run % 37));
  const RunList list = ListOf(all);
  const LaidRuns runs(list, all.size());
  for (std::size_t run = 0; run < all.size(); ++run) {
    const LaidRun& laid = runs.begin()[static_cast<std::ptrdiff_t>(run)];
    EXPECT_EQ(runs.FormatOf(laid).Color(), all[run].Color);
    EXPECT_EQ(runs.FormatOf(laid).Number(), laid.format);
  }
}

TEST(LaidRuns, MeasuresBeyondASingleRaise6) {
  const RunList list = ListOf({RunIn(RunFont(StandardFont("Courier", 3e38F)), 1)});
  EXPECT_EQ(ErrorNumberOf([&] { LaidRuns(list, 1); }), Error::kOverflow);
  EXPECT_NO_THROW(LaidRuns(list, 0));
}

}  // namespace
}  // namespace folivar::test
