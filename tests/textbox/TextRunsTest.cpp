#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "folivar/base/Error.h"
#include "folivar/fonts/PDFFont.h"
#include "folivar/textbox/TextRuns.h"
#include "tests/support/Content.h"
#include "tests/support/Random.h"
#include "tests/support/StandardFont.h"

namespace folivar::test {
namespace {

using Lengths = std::vector<std::int32_t>;

Lengths LengthsOf(const TextRuns& runs) {
  Lengths lengths;
  runs.List().ForEach([&](const TEXT_FORMAT_RANGE& run) { lengths.push_back(run.Length); });
  return lengths;
}

std::vector<std::int32_t> ColorsOf(const TextRuns& runs) {
  std::vector<std::int32_t> colors;
  runs.List().ForEach([&](const TEXT_FORMAT_RANGE& run) { colors.push_back(run.Color); });
  return colors;
}

void SetColor(TextRuns& runs, std::int64_t start, std::int64_t end, std::int32_t color,
              std::int64_t textLength) {
  const auto stretch = runs.SplitRunsAtSelection(start, end, textLength);
  runs.ForEach(stretch, [&](TEXT_FORMAT_RANGE& run) { run.Color = color; });
  runs.MergeEquivalentRuns(stretch);
}

// One run for each length; the colours count from 0.
TextRuns RunsOf(const Lengths& lengths) {
  TextRuns runs{RunFont(StandardFont())};
  std::int32_t length = 0;
  for (const std::int32_t each : lengths) length += each;
  runs.ResetText(length);
  std::int32_t start = 0;
  std::int32_t color = 0;
  for (const std::int32_t each : lengths) {
    SetColor(runs, start, start + each, color++, length);
    start += each;
  }
  EXPECT_EQ(LengthsOf(runs), lengths);
  return runs;
}

TEST(TextRuns, StartsAsOneEmptyRunInTheFontGiven) {
  const auto font = StandardFont();
  const TextRuns runs{RunFont(font)};
  ASSERT_EQ(runs.List().Count(), 1U);
  EXPECT_EQ(runs.List()[0].Font.Seen(), font);
  EXPECT_EQ(runs.List()[0].Length, 0);
}

TEST(TextRuns, ASelectionInARunMakesThree) {
  TextRuns runs = RunsOf({10});
  const auto stretch = runs.SplitRunsAtSelection(2, 4, 10);
  EXPECT_EQ(stretch.first, 1U);
  EXPECT_EQ(stretch.last, 1U);
  EXPECT_EQ(LengthsOf(runs), (Lengths{2, 2, 6}));
}

TEST(TextRuns, OnlyTheWantedPieceMayBeEmpty) {
  TextRuns runs = RunsOf({10});
  runs.SplitRunsAtSelection(0, 4, 10);
  EXPECT_EQ(LengthsOf(runs), (Lengths{4, 6}));
  runs = RunsOf({10});
  runs.SplitRunsAtSelection(4, 10, 10);
  EXPECT_EQ(LengthsOf(runs), (Lengths{4, 6}));
  runs = RunsOf({10});
  runs.SplitRunsAtSelection(0, 10, 10);
  EXPECT_EQ(LengthsOf(runs), (Lengths{10}));
  runs = RunsOf({10});
  runs.SplitRunsAtSelection(5, 5, 10);
  EXPECT_EQ(LengthsOf(runs), (Lengths{5, 0, 5}));
  runs = RunsOf({10});
  runs.SplitRunsAtSelection(0, 0, 10);
  EXPECT_EQ(LengthsOf(runs), (Lengths{0, 10}));
  runs = RunsOf({10});
  runs.SplitRunsAtSelection(10, 10, 10);
  EXPECT_EQ(LengthsOf(runs), (Lengths{10, 0}));
}

TEST(TextRuns, TheFirstPieceKeepsTheFontObject) {
  TextRuns runs = RunsOf({10});
  const auto font = runs.List()[0].Font.Seen();
  runs.SplitRunsAtSelection(2, 4, 10);
  EXPECT_EQ(runs.List()[0].Font.Seen(), font);
  EXPECT_NE(runs.List()[1].Font.Seen(), font);
  EXPECT_NE(runs.List()[2].Font.Seen(), font);
  EXPECT_NE(runs.List()[1].Font.Seen(), runs.List()[2].Font.Seen());
  runs = RunsOf({10});
  const auto other = runs.List()[0].Font.Seen();
  runs.SplitRunsAtSelection(0, 4, 10);
  EXPECT_EQ(runs.List()[0].Font.Seen(), other) << "the wanted piece is the first";
}

TEST(TextRuns, ASelectionAcrossRunsSplitsTheFirstAndTheLast) {
  TextRuns runs = RunsOf({4, 3, 5});
  const auto stretch = runs.SplitRunsAtSelection(2, 9, 12);
  EXPECT_EQ(stretch.first, 1U);
  EXPECT_EQ(stretch.last, 3U);
  EXPECT_EQ(LengthsOf(runs), (Lengths{2, 2, 3, 2, 3}));
}

TEST(TextRuns, ASelectionOfWholeRunsSplitsNone) {
  TextRuns runs = RunsOf({4, 3, 5});
  const auto stretch = runs.SplitRunsAtSelection(4, 12, 12);
  EXPECT_EQ(stretch.first, 1U);
  EXPECT_EQ(stretch.last, 2U);
  EXPECT_EQ(LengthsOf(runs), (Lengths{4, 3, 5}));
}

TEST(TextRuns, FormattingBackMergesAgain) {
  TextRuns runs = RunsOf({10});
  SetColor(runs, 2, 4, 7, 10);
  EXPECT_EQ(LengthsOf(runs), (Lengths{2, 2, 6}));
  SetColor(runs, 2, 4, 0, 10);
  EXPECT_EQ(LengthsOf(runs), (Lengths{10}));
}

TEST(TextRuns, TheStretchSurvivesWhereItJoinsTheRunBefore) {
  TextRuns runs = RunsOf({4, 4, 4});
  const auto stretch = runs.SplitRunsAtSelection(4, 8, 12);
  const auto font = runs.List()[1].Font.Seen();
  runs.ForEach(stretch, [](TEXT_FORMAT_RANGE& run) { run.Color = 0; });
  runs.MergeEquivalentRuns(stretch);
  EXPECT_EQ(LengthsOf(runs), (Lengths{8, 4}));
  EXPECT_EQ(runs.List()[0].Font.Seen(), font);
}

TEST(TextRuns, TheStretchSurvivesWhereItJoinsTheRunBehind) {
  TextRuns runs = RunsOf({4, 4, 4});
  const auto stretch = runs.SplitRunsAtSelection(4, 8, 12);
  const auto font = runs.List()[1].Font.Seen();
  runs.ForEach(stretch, [](TEXT_FORMAT_RANGE& run) { run.Color = 2; });
  runs.MergeEquivalentRuns(stretch);
  EXPECT_EQ(LengthsOf(runs), (Lengths{4, 8}));
  EXPECT_EQ(runs.List()[1].Font.Seen(), font);
}

TEST(TextRuns, ReplacingInsideARunChangesItsLength) {
  TextRuns runs = RunsOf({10, 5});
  runs.ReplaceText(3, 3, 2, 15);
  EXPECT_EQ(LengthsOf(runs), (Lengths{12, 5}));
  runs.ReplaceText(1, 11, 0, 17);
  EXPECT_EQ(LengthsOf(runs), (Lengths{2, 5}));
}

TEST(TextRuns, DeliberateReplacingAcrossRunsLeavesTheFirstRunsLength) {
  TextRuns runs = RunsOf({4, 6});
  runs.ReplaceText(2, 7, 1, 10);
  EXPECT_EQ(LengthsOf(runs), (Lengths{4, 3}));
}

TEST(TextRuns, DeliberateReplacingUpToTheEndOfTheNextRunRemovesIt) {
  TextRuns runs = RunsOf({4, 6, 2});
  runs.ReplaceText(2, 10, 1, 12);
  EXPECT_EQ(LengthsOf(runs), (Lengths{4, 2}));
  EXPECT_EQ(ColorsOf(runs), (std::vector<std::int32_t>{0, 2}));
}

TEST(TextRuns, DeliberateReplacingStrikesTheRunAtTheOldNumber) {
  TextRuns runs = RunsOf({4, 1, 6, 2});
  runs.ReplaceText(2, 11, 1, 13);
  // Run 3 was the last one touched; now that run 2 is gone, number 3 is the one behind it.
  EXPECT_EQ(LengthsOf(runs), (Lengths{4, 0}));
  EXPECT_EQ(ColorsOf(runs), (std::vector<std::int32_t>{0, 2}));
}

TEST(TextRuns, DeliberateReplacingRaises9WhereNoRunHasTheOldNumber) {
  TextRuns runs = RunsOf({4, 1, 6});
  EXPECT_EQ(ErrorNumberOf([&] { runs.ReplaceText(2, 11, 1, 11); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(LengthsOf(runs), (Lengths{4, 0}));
  EXPECT_NE(ErrorTextOf([&] {
              TextRuns others = RunsOf({4, 1, 6});
              others.ReplaceText(2, 11, 1, 11);
            }).find("position 3 is outside 1 to 2"),
            std::string::npos);
}

TEST(TextRuns, ANewTextIsOneRunInTheFirstFormat) {
  TextRuns runs = RunsOf({4, 6});
  runs.ResetText(7);
  EXPECT_EQ(LengthsOf(runs), (Lengths{7}));
  EXPECT_EQ(ColorsOf(runs), (std::vector<std::int32_t>{0}));
}

TEST(TextRuns, DeliberateANewTextForThreeRunsOrMoreRemovesEveryOtherAndRaises9) {
  for (std::size_t count = 3; count <= 600; count += count < 8 ? 1 : 148) {
    TextRuns runs = RunsOf(Lengths(count, 2));
    EXPECT_EQ(ErrorNumberOf([&] { runs.ResetText(7); }), Error::kSubscriptOutOfRange) << count;
    // As removing numbers 2, 3, ... one at a time leaves them.
    std::vector<std::int32_t> colors;
    for (std::size_t color = 0; color < count; ++color) {
      colors.push_back(static_cast<std::int32_t>(color));
    }
    std::size_t failing = 2;
    for (; failing <= colors.size(); ++failing) {
      colors.erase(colors.begin() + static_cast<std::ptrdiff_t>(failing) - 1);
    }
    EXPECT_EQ(ColorsOf(runs), colors) << count;
    EXPECT_EQ(LengthsOf(runs), Lengths(colors.size(), 2)) << count;
    const std::string text = ErrorTextOf([&] { RunsOf(Lengths(count, 2)).ResetText(7); });
    EXPECT_NE(text.find("position " + std::to_string(failing) + " is outside 1 to " +
                        std::to_string(colors.size())),
              std::string::npos)
        << text;
  }
}

TEST(TextRuns, TheLastRunTakesWhatIsLeftOfALongerText) {
  TextRuns runs = RunsOf({4, 2});
  SetColor(runs, 8, 9, 9, 20);
  EXPECT_EQ(LengthsOf(runs), (Lengths{4, 4, 1, 11}));
  EXPECT_EQ(ColorsOf(runs), (std::vector<std::int32_t>{0, 1, 9, 1}));
  runs = RunsOf({4, 2});
  runs.ReplaceText(1, 15, 1, 20);
  EXPECT_EQ(LengthsOf(runs), (Lengths{4, 5}));
}

TEST(TextRuns, ACopyHasFontsOfItsOwn) {
  const TextRuns source = RunsOf({4, 2});
  TextRuns copy = RunsOf({1, 1, 1});
  copy.CopyFrom(source);
  EXPECT_EQ(LengthsOf(copy), (Lengths{4, 2}));
  EXPECT_EQ(ColorsOf(copy), (std::vector<std::int32_t>{0, 1}));
  EXPECT_NE(copy.List()[0].Font.Seen(), source.List()[0].Font.Seen());
  EXPECT_NE(copy.List()[1].Font.Seen(), source.List()[1].Font.Seen());
}

TEST(TextRuns, ACopyOfItselfKeepsItsFonts) {
  TextRuns runs = RunsOf({4, 2});
  const auto font = runs.List()[0].Font.Seen();
  runs.CopyFrom(runs);
  EXPECT_EQ(runs.List()[0].Font.Seen(), font);
  EXPECT_EQ(LengthsOf(runs), (Lengths{4, 2}));
}

// The naive model: each unit of the text has its own format.
struct Format {
  std::int32_t color = 0;
  PDFParaAlignment alignment = alignLeft;
  float size = 10;
  bool isUnderlined = false;

  friend bool operator==(const Format&, const Format&) = default;
};

Format FormatOf(const TEXT_FORMAT_RANGE& run) {
  return {run.Color, run.Alignment, run.Font->Size(), run.Font->Underline()};
}

class FormatOfEachUnit : public testing::Test {
 protected:
  std::int64_t Length() const { return static_cast<std::int64_t>(model_.size()); }

  void ChangeFormat(std::int64_t start, std::int64_t end) {
    const std::size_t what = random_.Below(4);
    const auto value = static_cast<std::int32_t>(random_.Below(3));
    const auto stretch = runs_.SplitRunsAtSelection(start, end, Length());
    runs_.ForEach(stretch, [&](TEXT_FORMAT_RANGE& run) {
      if (what == 0) run.Color = value;
      if (what == 1) run.Alignment = static_cast<PDFParaAlignment>(1 + value);
      if (what == 2) run.Font.Own().SetSize(static_cast<float>(10 + value));
      if (what == 3) run.Font.Own().SetUnderline(value == 1);
    });
    runs_.MergeEquivalentRuns(stretch);
    for (auto unit = start; unit < end; ++unit) {
      Format& format = model_[static_cast<std::size_t>(unit)];
      if (what == 0) format.color = value;
      if (what == 1) format.alignment = static_cast<PDFParaAlignment>(1 + value);
      if (what == 2) format.size = static_cast<float>(10 + value);
      if (what == 3) format.isUnderlined = value == 1;
    }
  }

  // Only inside one run: deliberately, replacing across runs breaks what the model stands for.
  void ReplaceText(std::int64_t start, std::int64_t end) {
    const auto found = runs_.FindSelectionRuns(start, end);
    if (!found.IsOneRun()) return;
    const std::size_t added = random_.Below(6);
    const Format format = FormatOf(runs_.List()[found.first.index]);
    runs_.ReplaceText(start, end, static_cast<std::int32_t>(added), Length());
    const auto at = [&](std::int64_t unit) { return model_.begin() + unit; };
    model_.erase(at(start), at(end));
    model_.insert(at(start), added, format);
  }

  void ExpectSame() const {
    std::vector<Format> formats;
    const TEXT_FORMAT_RANGE* before = nullptr;
    runs_.List().ForEach([&](const TEXT_FORMAT_RANGE& run) {
      EXPECT_GE(run.Length, 0);
      EXPECT_FALSE(before != nullptr && before->IsFormatEquivalent(run)) << "neighbours alike";
      formats.insert(formats.end(), static_cast<std::size_t>(run.Length), FormatOf(run));
      before = &run;
    });
    EXPECT_TRUE(formats == model_);
  }

  Random random_;
  TextRuns runs_{RunFont(StandardFont())};
  std::vector<Format> model_;
};

TEST_F(FormatOfEachUnit, IsWhatTheRunsSay) {
  SCOPED_TRACE(random_.Trace());
  for (int step = 0; step < 20000; ++step) {
    const auto start = static_cast<std::int64_t>(random_.Below(model_.size() + 1));
    const auto rest = static_cast<std::size_t>(Length() - start);
    const std::int64_t end =
        start + static_cast<std::int64_t>(random_.Chance(30) ? random_.Below(rest + 1)
                                                             : std::min(rest, random_.Below(6)));
    // Short texts, in which everything happens at the ends, and long ones.
    const std::size_t grows = model_.size() < 20 ? 50 : model_.size() > 400 ? 0 : 20;
    if (random_.Chance(grows)) {
      ReplaceText(start, start);
    } else if (random_.Chance(15)) {
      ReplaceText(start, end);
    } else {
      ChangeFormat(start, end);
    }
    if (random_.Chance(1)) {
      TextRuns copy{RunFont(StandardFont())};
      copy.CopyFrom(runs_);
      runs_.CopyFrom(copy);
    }
    ExpectSame();
    if (HasFailure()) FAIL() << "at step " << step;
  }
}

}  // namespace
}  // namespace folivar::test
