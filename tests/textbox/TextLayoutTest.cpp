#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "folivar/base/Error.h"
#include "folivar/fonts/PDFFont.h"
#include "folivar/textbox/RunList.h"
#include "folivar/textbox/TextLayout.h"
#include "tests/support/Content.h"
#include "tests/support/Random.h"
#include "tests/support/StandardFont.h"

// Expected measures come from the published metrics at size 10. Helvetica: "one " 19.46 wide,
// "two " 18.34, "three" 22.79, blank 2.78; leading 11.56, bottom of the box -2.25. Courier: every
// character 6 wide, leading 10.55, bottom -2.5.

namespace folivar::test {
namespace {

struct Piece {
  std::string text;
  std::shared_ptr<PDFFont> font = StandardFont();
  PDFParaAlignment alignment = alignLeft;
};

TEXT_FORMAT_RANGE RunOf(const Piece& piece) {
  TEXT_FORMAT_RANGE run;
  run.Font = RunFont(piece.font);
  run.Alignment = piece.alignment;
  run.Length = static_cast<std::int32_t>(piece.text.size());
  return run;
}

// A text in one run for each piece, as wide as there is room for.
class Laid {
 public:
  explicit Laid(const std::vector<Piece>& pieces, float width = 1000) : runs_(RunOf({})) {
    geometry_.width = width;
    std::vector<TEXT_FORMAT_RANGE> runs;
    for (const Piece& piece : pieces) {
      bytes_ += piece.text;
      runs.push_back(RunOf(piece));
    }
    if (!runs.empty()) runs_.Replace(0, 1, runs);
  }

  TextBoxGeometry& Geometry() { return geometry_; }
  TextLayout Layout() const { return TextLayout(bytes_, runs_, geometry_); }
  const std::string& Bytes() const { return bytes_; }
  RunList& Runs() { return runs_; }

  std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    TextLayout layout = Layout();
    while (const auto line = layout.NextLine()) {
      lines.push_back(bytes_.substr(line->start, line->end - line->start));
    }
    return lines;
  }

 private:
  std::string bytes_;
  RunList runs_;
  TextBoxGeometry geometry_;
};

using Lines = std::vector<std::string>;

TEST(TextLayout, LinesBreakAtBlanks) {
  // 46 for the text: "one two " takes 37.8, with "three" it were 60.59.
  EXPECT_EQ(Laid({{"one two three"}}, 50).Lines(), (Lines{"one two ", "three"}));
}

TEST(TextLayout, AWordThatJustReachesTheEdgeDoesNotFit) {
  const auto courier = StandardFont("Courier");
  EXPECT_EQ(Laid({{"aa bb", courier}}, 34).Lines(), (Lines{"aa ", "bb"})) << "30 of 30";
  EXPECT_EQ(Laid({{"aa bb", courier}}, 35).Lines(), (Lines{"aa bb"})) << "30 of 31";
}

TEST(TextLayout, TheRoomIsRoundedToWholePointsHalvesToEven) {
  const auto courier = StandardFont("Courier");
  EXPECT_EQ(Laid({{"aa bb", courier}}, 34.5F).Lines(), (Lines{"aa ", "bb"})) << "30.5 is 30";
  EXPECT_EQ(Laid({{"aa bb", courier}}, 34.75F).Lines(), (Lines{"aa bb"})) << "30.75 is 31";
  EXPECT_EQ(Laid({{"aa bb", StandardFont("Courier", 10.5F)}}, 35.5F).Lines(), (Lines{"aa bb"}))
      << "31.5, and 31.5 of room is 32";
}

TEST(TextLayout, AWordThatIsTooWideHasALineOfItsOwn) {
  EXPECT_EQ(Laid({{"a enormous b"}}, 30).Lines(), (Lines{"a ", "enormous ", "b"}));
  EXPECT_EQ(Laid({{"enormous"}}, 30).Lines(), (Lines{"enormous"}));
  EXPECT_EQ(Laid({{"a b c"}}, 0).Lines(), (Lines{"a ", "b ", "c"})) << "no room at all";
}

TEST(TextLayout, AWordThatCrossesRunsIsOneWord) {
  EXPECT_EQ(Laid({{"one t"}, {"wo thr", StandardFont("Courier")}, {"ee"}}, 52).Lines(),
            (Lines{"one two ", "three"}));
}

TEST(TextLayout, OnlyBlanksBreakLines) {
  const auto courier = StandardFont("Courier");
  EXPECT_EQ(Laid({{"aaaa\tbbbb-cccc", courier}}, 30).Lines(), (Lines{"aaaa\tbbbb-cccc"}));
  EXPECT_EQ(Laid({{"aaaa\xA0"
                   "bbbb",
                   courier}},
                 30)
                .Lines(),
            (Lines{"aaaa\xA0"
                   "bbbb"}));
}

TEST(TextLayout, LineFeedsEndLinesAndBelongToThem) {
  EXPECT_EQ(Laid({{"a b\n\nc"}}).Lines(), (Lines{"a b\n", "\n", "c"}));
  EXPECT_EQ(Laid({{"a\n"}}).Lines(), (Lines{"a\n"})) << "no empty line follows";
  EXPECT_EQ(Laid({{"\n\n"}}).Lines(), (Lines{"\n", "\n"}));
  EXPECT_EQ(Laid({{""}}).Lines(), (Lines{}));
}

TEST(TextLayout, WithoutWordWrapOnlyLineFeedsEndLines) {
  Laid laid({{"one two three\nfour"}}, 10);
  laid.Geometry().wordWrap = false;
  EXPECT_EQ(laid.Lines(), (Lines{"one two three\n", "four"}));
}

TEST(TextLayout, MarginsTakeRoomFromTheText) {
  Laid laid({{"one two three"}}, 70);
  EXPECT_EQ(laid.Lines(), (Lines{"one two three"}));
  laid.Geometry().marginLeft = 5;
  laid.Geometry().marginRight = 6;
  EXPECT_EQ(laid.Lines(), (Lines{"one two ", "three"})) << "59 for 60.59";
}

TEST(TextLayout, AWidthThatIsNoNumberBreaksNoLine) {
  Laid laid({{"one two three"}}, std::numeric_limits<float>::infinity());
  EXPECT_EQ(laid.Lines(), (Lines{"one two three"}));
  laid.Geometry().width = std::numeric_limits<float>::quiet_NaN();
  EXPECT_EQ(laid.Layout().FindLineEnd(0), 13U);
}

TEST(TextLayout, ARangeIsAsWideAsItsPieces) {
  const Laid laid({{"one "}, {"two", StandardFont("Courier")}, {"\n"}});
  const TextLayout layout = laid.Layout();
  EXPECT_FLOAT_EQ(layout.MeasureRangeWidth(0, 4), 19.46F);
  EXPECT_FLOAT_EQ(layout.MeasureRangeWidth(0, 8), 37.46F) << "the line feed has no width";
  EXPECT_FLOAT_EQ(layout.MeasureRangeWidth(3, 5), 8.78F);
  EXPECT_EQ(layout.MeasureRangeWidth(7, 8), 0);
  EXPECT_EQ(layout.MeasureRangeWidth(2, 2), 0);
}

TEST(TextLayout, SubscriptIsMeasuredSmaller) {
  const auto font = StandardFont("Courier");
  font->SetSubscript(true);
  const Laid laid({{"abc", font}});
  EXPECT_FLOAT_EQ(laid.Layout().MeasureRangeWidth(0, 3), 11.7F);
}

TEST(TextLayout, ALineIsMeasuredOverItsFonts) {
  const auto large = StandardFont("Courier", 20);
  const Laid laid({{"one "}, {"b", large}, {" o"}});
  const LineMeasures line = laid.Layout().MeasureLine(0, 7);
  EXPECT_FLOAT_EQ(line.width, 19.46F + 12 + 8.34F);
  EXPECT_FLOAT_EQ(line.leading, 21.1F);
  EXPECT_FLOAT_EQ(line.bottom, -5.0F);
  EXPECT_EQ(line.height, large->GetTextExtents("b").height);
  const LineMeasures first = laid.Layout().MeasureLine(0, 4);
  EXPECT_FLOAT_EQ(first.leading, 11.56F);
  EXPECT_FLOAT_EQ(first.bottom, -2.25F);
}

TEST(TextLayout, ALineFeedAloneHasALeadingAndAnEmptyRunHasNone) {
  const Laid laid({{"", StandardFont("Courier", 99)}, {"\n"}});
  const LineMeasures line = laid.Layout().MeasureLine(0, 1);
  EXPECT_FLOAT_EQ(line.leading, 11.56F);
  EXPECT_FLOAT_EQ(line.bottom, -2.25F);
  EXPECT_EQ(line.width, 0);
}

TEST(TextLayout, LeadingIsNeverBelowAndBottomNeverAboveZero) {
  const Laid laid({{"text", StandardFont("Helvetica", -10)}});
  const LineMeasures line = laid.Layout().MeasureLine(0, 4);
  EXPECT_EQ(line.leading, 0);
  EXPECT_EQ(line.bottom, 0);
}

TEST(TextLayout, SubscriptAndSuperscriptKeepTheLeadingOfTheirSize) {
  const auto font = StandardFont();
  font->SetSuperscript(true);
  EXPECT_FLOAT_EQ(Laid({{"text", font}}).Layout().MeasureLine(0, 4).leading, 11.56F);
}

// Deliberate: the shift is to the box's edge, though the line starts at the margin.
TEST(TextLayout, DeliberateLinesAreAlignedBetweenTheEdgesAndNotTheMargins) {
  const Laid laid({{"one ", StandardFont("Courier")}}, 100);
  const TextLayout layout = laid.Layout();
  EXPECT_EQ(layout.AlignmentShift(0, 4, alignRight), 82) << "the blank at the end hangs over";
  EXPECT_EQ(layout.AlignmentShift(0, 4, alignCenter), 41);
  EXPECT_EQ(layout.AlignmentShift(0, 4, alignLeft), 0);
  EXPECT_EQ(layout.AlignmentShift(0, 4, alignNULL), 0);
  EXPECT_EQ(layout.AlignmentShift(0, 4, static_cast<PDFParaAlignment>(7)), 0);
}

TEST(TextLayout, LeadingWhiteSpaceCountsAsGiven) {
  const Laid laid({{"  one\t\v\f\r\n", StandardFont("Courier")}}, 100);
  const TextLayout layout = laid.Layout();
  EXPECT_EQ(layout.AlignmentShift(0, 10, alignCenter), 41 - 12);
  EXPECT_EQ(layout.AlignmentShift(0, 10, alignRight), 100 - 30);
}

TEST(TextLayout, ABlankLineIsAllLead) {
  const Laid laid({{"   \n", StandardFont("Courier")}}, 100);
  const TextLayout layout = laid.Layout();
  EXPECT_EQ(layout.AlignmentShift(0, 4, alignCenter), 50 - 18);
  EXPECT_EQ(layout.AlignmentShift(0, 4, alignRight), 82);
}

TEST(TextLayout, ALineIsAlignedAsItsFirstCharacterAndByWholePoints) {
  const auto courier = StandardFont("Courier");
  const Laid laid({{"abc", courier, alignCenter}, {"d\nef", courier, alignLeft}}, 99);
  TextLayout layout = laid.Layout();
  EXPECT_EQ(layout.NextLine()->shift, 38) << "37.5 is 38";
  EXPECT_EQ(layout.NextLine()->shift, 0);
  EXPECT_FALSE(layout.NextLine());
}

TEST(TextLayout, SegmentsAreCutWhereTheRunChangesAndNowhereElse) {
  const Laid laid({{"one  "}, {"two\t(3)", StandardFont("Courier")}, {"\n"}, {"4\n"}});
  TextLayout layout = laid.Layout();
  std::vector<std::string> segments;
  while (const auto line = layout.NextLine()) {
    layout.ForEachSegment(*line, [&](std::string_view bytes, const MeasuredFormat& format) {
      segments.push_back(format.Font().FontFace().Utf8() + ":" + std::string(bytes));
    });
  }
  EXPECT_EQ(segments, (Lines{"Helvetica:one  ", "Courier:two\t(3)", "Helvetica:4"}));
}

TEST(TextLayout, ADecoratedRunMarksItsLines) {
  const auto underlined = StandardFont();
  underlined->SetUnderline(true);
  const auto struck = StandardFont();
  struck->SetStrikeOut(true);
  const Laid laid({{"a\nb"}, {"c", underlined}, {"\nd"}, {"\n", struck}, {"e"}});
  TextLayout layout = laid.Layout();
  EXPECT_FALSE(layout.NextLine()->isDecorated);
  EXPECT_TRUE(layout.NextLine()->isDecorated);
  EXPECT_TRUE(layout.NextLine()->isDecorated);
  EXPECT_FALSE(layout.NextLine()->isDecorated);
}

TEST(TextLayout, MeasuresAllLinesTogether) {
  const Laid laid({{"one two "}, {"three", StandardFont("Courier")}}, 50);
  const AllExtents extents = laid.Layout().Measure();
  EXPECT_FLOAT_EQ(extents.width, 37.8F);
  EXPECT_FLOAT_EQ(extents.leadings, 11.56F + 10.55F);
  EXPECT_FLOAT_EQ(extents.bottom, -2.5F) << "of the last line";
  const AllExtents none = Laid({{""}}).Layout().Measure();
  EXPECT_EQ(none.width, 0);
  EXPECT_EQ(none.leadings, 0);
  EXPECT_EQ(none.bottom, 0);
}

TEST(TextLayout, MeasuresBeyondASingleRaise6) {
  const Laid laid({{"text", StandardFont("Courier", 3e38F)}});
  EXPECT_EQ(ErrorNumberOf([&] { laid.Lines(); }), Error::kOverflow);
  EXPECT_EQ(ErrorNumberOf([&] { laid.Layout().Measure(); }), Error::kOverflow);
}

TEST(TextLayout, TheLastRunTakesWhatIsLeftOfALongerText) {
  Laid laid({{"one "}, {"two three", StandardFont("Courier")}});
  laid.Runs().SetLength(1, 3);
  const TextLayout layout = laid.Layout();
  EXPECT_FLOAT_EQ(layout.MeasureRangeWidth(0, 13), 19.46F + 9 * 6);
}

TEST(TextLayout, RunsBeyondTheTextDoNotCount) {
  Laid laid({{"one", StandardFont("Courier")}, {"two", StandardFont("Courier", 99)}});
  const TextBoxGeometry& geometry = laid.Geometry();
  TextLayout layout("on", laid.Runs(), geometry);
  const auto line = layout.NextLine();
  ASSERT_TRUE(line);
  EXPECT_EQ(line->end, 2U);
  EXPECT_FLOAT_EQ(line->leading, 10.55F);
  EXPECT_FALSE(layout.NextLine());
}

// The rules as the plainest program that keeps them: every step begins at the first run.
class Naive {
 public:
  Naive(const Laid& laid, const RunList& runs, const TextBoxGeometry& geometry)
      : bytes_(laid.Bytes()), geometry_(geometry) {
    runs.ForEach([&](const TEXT_FORMAT_RANGE& run) { runs_.push_back(run); });
  }

  float MeasureRangeWidth(std::size_t start, std::size_t end) const {
    float width = 0;
    for (const auto& [text, font] : PiecesOf(start, end)) {
      if (text != "\n") width += font->TextWidth(Latin1(text));
    }
    return width;
  }

  std::size_t FindLineEnd(std::size_t start) const {
    const std::size_t newLine = bytes_.find('\n', start);
    const std::size_t nl = newLine == std::string::npos ? bytes_.size() : newLine + 1;
    if (!geometry_.wordWrap) return nl;
    const float room = geometry_.width - geometry_.marginLeft - geometry_.marginRight;
    float width = 0;
    for (std::size_t pos = start; pos != nl;) {
      const std::size_t blank = bytes_.find(' ', pos);
      const std::size_t sp = blank == std::string::npos ? nl : std::min(blank + 1, nl);
      width += MeasureRangeWidth(pos, sp);
      if (width >= std::nearbyint(room)) return pos == start ? sp : pos;
      pos = sp;
    }
    return nl;
  }

  float AlignmentShift(std::size_t start, std::size_t end, bool isRight) const {
    const auto isWhite = [&](std::size_t place) {
      return bytes_[place] == ' ' || (bytes_[place] >= 9 && bytes_[place] <= 13);
    };
    std::size_t first = start;
    while (first < end && isWhite(first)) ++first;
    std::size_t last = end;
    while (last > first && isWhite(last - 1)) --last;
    const float width = MeasureRangeWidth(first, last);
    const float lead = MeasureRangeWidth(start, first);
    return isRight ? geometry_.width - (lead + width) : (geometry_.width - width) / 2 - lead;
  }

  float Leading(std::size_t start, std::size_t end) const {
    float leading = 0;
    for (const auto& [text, font] : PiecesOf(start, end)) {
      leading = std::max(leading, font->Leading());
    }
    return leading;
  }

 private:
  using FontPiece = std::pair<std::string, const PDFFont*>;

  static std::u16string Latin1(const std::string& bytes) { return {bytes.begin(), bytes.end()}; }

  std::vector<FontPiece> PiecesOf(std::size_t start, std::size_t end) const {
    std::vector<FontPiece> pieces;
    std::size_t runStart = 0;
    for (const TEXT_FORMAT_RANGE& run : runs_) {
      const std::size_t runEnd = runStart + static_cast<std::size_t>(run.Length);
      const std::size_t from = std::max(start, runStart);
      const std::size_t to = std::min(end, runEnd);
      if (from < to) pieces.emplace_back(bytes_.substr(from, to - from), &*run.Font);
      runStart = runEnd;
    }
    return pieces;
  }

  std::string bytes_;
  const TextBoxGeometry& geometry_;
  std::vector<TEXT_FORMAT_RANGE> runs_;
};

std::string RandomBytes(Random& random) {
  static constexpr std::string_view kBytes = "abcdefgWi    \n\t(\\";
  std::string bytes;
  for (std::size_t size = random.Below(20); size > 0; --size) {
    bytes += kBytes[random.Below(kBytes.size())];
  }
  return bytes;
}

TEST(TextLayout, IsWhatTheRulesSayForAnyText) {
  Random random;
  SCOPED_TRACE(random.Trace());
  std::size_t lines = 0;
  for (int round = 0; round < 4000; ++round) {
    std::vector<Piece> pieces;
    for (std::size_t count = random.Below(12); count > 0; --count) {
      const auto font = StandardFont(random.Chance(50) ? "Courier" : "Times-Roman",
                                     static_cast<float>(random.Below(300)) / 10);
      font->SetSubscript(random.Chance(10));
      font->SetSuperscript(random.Chance(10));
      pieces.push_back({RandomBytes(random), font});
    }
    Laid laid(pieces, static_cast<float>(random.Below(4000)) / 16);
    laid.Geometry().wordWrap = random.Chance(90);
    laid.Geometry().marginRight = static_cast<float>(random.Below(100)) / 16;
    const Naive naive(laid, laid.Runs(), laid.Geometry());
    TextLayout layout = laid.Layout();
    std::size_t start = 0;
    while (const auto line = layout.NextLine()) {
      ASSERT_EQ(line->start, start);
      ASSERT_EQ(line->end, naive.FindLineEnd(start));
      ASSERT_EQ(line->leading, naive.Leading(start, line->end));
      for (const bool isRight : {false, true}) {
        ASSERT_EQ(layout.AlignmentShift(start, line->end, isRight ? alignRight : alignCenter),
                  naive.AlignmentShift(start, line->end, isRight));
      }
      ASSERT_EQ(layout.MeasureRangeWidth(start, line->end),
                naive.MeasureRangeWidth(start, line->end));
      const std::size_t anywhere = random.Below(line->end);
      ASSERT_EQ(layout.FindLineEnd(anywhere), naive.FindLineEnd(anywhere));
      ASSERT_EQ(layout.MeasureRangeWidth(anywhere, laid.Bytes().size()),
                naive.MeasureRangeWidth(anywhere, laid.Bytes().size()));
      start = line->end;
      ++lines;
    }
    ASSERT_EQ(start, laid.Bytes().size());
  }
  EXPECT_GT(lines, 20000U) << "so that there was something to see";
}

// Walking along the text or the runs once more for each word would not end within the test's time.
TEST(TextLayout, AMillionCharactersInTenThousandRunsAreLaidOutInOneWalk) {
  const std::vector<std::shared_ptr<PDFFont>> fonts{StandardFont("Courier"),
                                                    StandardFont("Courier-Bold")};
  std::string words;
  for (int word = 0; word < 20; ++word) words += "abcd ";
  std::vector<Piece> pieces;
  for (std::size_t run = 0; run < 10000; ++run) pieces.push_back({words, fonts[run % 2]});
  const Laid laid(pieces, 400);
  TextLayout layout = laid.Layout();
  // 13 words of 30 points are 390 of 396.
  std::size_t lines = 0;
  std::size_t longLines = 0;
  while (const auto line = layout.NextLine()) {
    ++lines;
    if (line->end - line->start == 65) ++longLines;
  }
  EXPECT_EQ(lines, 15385U);
  EXPECT_EQ(longLines, 15384U);
}

}  // namespace
}  // namespace folivar::test
