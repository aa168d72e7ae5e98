#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "folivar/base/Error.h"
#include "folivar/textbox/MeasuredRuns.h"
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

TEST(MeasuredRuns, ThoseWithoutTextAreLeftOut) {
  const RunFont font(StandardFont());
  const RunList list = ListOf({RunIn(font, 0), RunIn(font, 3), RunIn(font, 0), RunIn(font, 2)});
  const MeasuredRuns runs("abcde", list);
  EXPECT_EQ(runs.begin()[0].end, 3U);
  EXPECT_EQ(runs.begin()[1].end, 5U);
}

TEST(MeasuredRuns, TheLastOneHasWhatIsLeftAndNoneGoesBeyondTheText) {
  const RunFont font(StandardFont());
  const RunList list = ListOf({RunIn(font, 3), RunIn(font, 2)});
  EXPECT_EQ(MeasuredRuns("abcdefghi", list).begin()[1].end, 9U);
  EXPECT_EQ(MeasuredRuns("ab", list).begin()[0].end, 2U);
}

TEST(MeasuredRuns, RunsOfOneFontAndColourShareAFormat) {
  const RunFont plain(StandardFont());
  const RunFont other(StandardFont("Courier", 20));
  const RunList list =
      ListOf({RunIn(plain, 1), RunIn(other, 1), RunIn(plain, 1), RunIn(plain, 1, 7)});
  const MeasuredRuns runs("abcd", list);
  ASSERT_EQ(runs.Formats().size(), 3U);
  EXPECT_EQ(runs.begin()[2].format, runs.begin()[0].format);
  EXPECT_EQ(runs.FormatOf(runs.begin()[3]).Color(), 7);
  EXPECT_EQ(runs.FormatOf(runs.begin()[1]).Number(), 1U);
  EXPECT_EQ(&runs.FormatOf(runs.begin()[1]).Font(), &*other);
}

// However many formats there are, each run has its own.
TEST(MeasuredRuns, EachRunHasItsFormat) {
  const RunFont font(StandardFont());
  std::vector<TEXT_FORMAT_RANGE> all;
  for (std::int32_t run = 0; run < 1000; ++run) all.push_back(RunIn(font, 1, run * run % 37));
  const RunList list = ListOf(all);
  const MeasuredRuns runs(std::string(all.size(), 'a'), list);
  for (std::size_t run = 0; run < all.size(); ++run) {
    const MeasuredRun& measured = runs.begin()[static_cast<std::ptrdiff_t>(run)];
    EXPECT_EQ(runs.FormatOf(measured).Color(), all[run].Color);
    EXPECT_EQ(runs.FormatOf(measured).Number(), measured.format);
  }
}

TEST(MeasuredRuns, MeasuresBeyondASingleRaise6) {
  const RunList list = ListOf({RunIn(RunFont(StandardFont("Courier", 3e38F)), 1)});
  EXPECT_EQ(ErrorNumberOf([&] { MeasuredRuns("a", list); }), Error::kOverflow);
  EXPECT_NO_THROW(MeasuredRuns("", list));
}

}  // namespace
}  // namespace folivar::test
