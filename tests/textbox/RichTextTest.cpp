#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "folivar/base/Error.h"
#include "folivar/fonts/PDFFont.h"
#include "folivar/textbox/RichText.h"
#include "tests/support/Content.h"
#include "tests/support/Random.h"
#include "tests/support/RichTextModel.h"
#include "tests/support/StandardFont.h"

namespace folivar::test {
namespace {

using Lengths = std::vector<std::int32_t>;
using Colors = std::vector<std::int32_t>;

Lengths LengthsOf(const RichText& text) {
  Lengths lengths;
  text.Runs().ForEach([&](const TEXT_FORMAT_RANGE& run) { lengths.push_back(run.Length); });
  return lengths;
}

Colors ColorsOf(const RichText& text) {
  Colors colors;
  text.Runs().ForEach([&](const TEXT_FORMAT_RANGE& run) { colors.push_back(run.Color); });
  return colors;
}

void Select(RichText& text, std::int32_t start, std::int32_t end) {
  text.SetSelStart(start);
  text.SetSelLength(end - start);
}

void SetColor(RichText& text, std::int32_t start, std::int32_t end, std::int32_t color) {
  Select(text, start, end);
  text.SetSelColor(color);
}

void Replace(RichText& text, std::int32_t start, std::int32_t end, const std::string& with) {
  Select(text, start, end);
  text.SetSelText(with);
}

std::shared_ptr<PDFFont> FontAt(RichText& text, std::int32_t start) {
  Select(text, start, start + 1);
  return text.SelFont();
}

// One run for each length; the colours count from 0.
RichText TextInRuns(const Lengths& lengths) {
  RichText text{RunFont(StandardFont())};
  std::size_t size = 0;
  for (const std::int32_t length : lengths) size += static_cast<std::size_t>(length);
  text.SetText(std::string(size, 'x'));
  std::int32_t start = 0;
  std::int32_t color = 0;
  for (const std::int32_t length : lengths) {
    SetColor(text, start, start + length, color++);
    start += length;
  }
  EXPECT_EQ(LengthsOf(text), lengths);
  return text;
}

// Runs of these lengths for a text of 20 units: the text set before was shorter than the one that
// now failed.
RichText TextBeyondItsRuns() {
  RichText text = TextInRuns({4, 1, 2});
  EXPECT_EQ(ErrorNumberOf([&] { text.SetText(std::string(20, 'x')); }),
            Error::kSubscriptOutOfRange);
  EXPECT_EQ(LengthsOf(text), (Lengths{4, 2}));
  return text;
}

TEST(RichText, StartsAsOneEmptyRunInTheFontGiven) {
  const auto font = StandardFont();
  RichText text{RunFont(font)};
  ASSERT_EQ(text.Runs().Count(), 1U);
  EXPECT_EQ(text.SelFont(), font);
  EXPECT_EQ(text.Text(), "");
  EXPECT_EQ(LengthsOf(text), Lengths{0});
}

TEST(RichText, ASelectionInARunMakesThree) {
  RichText text = TextInRuns({10});
  SetColor(text, 2, 4, 7);
  EXPECT_EQ(LengthsOf(text), (Lengths{2, 2, 6}));
  EXPECT_EQ(ColorsOf(text), (Colors{0, 7, 0}));
}

TEST(RichText, OnlyTheWantedPieceMayBeEmpty) {
  const auto split = [](std::int32_t start, std::int32_t end) {
    RichText text = TextInRuns({10});
    SetColor(text, start, end, 7);
    return LengthsOf(text);
  };
  EXPECT_EQ(split(0, 4), (Lengths{4, 6}));
  EXPECT_EQ(split(4, 10), (Lengths{4, 6}));
  EXPECT_EQ(split(0, 10), (Lengths{10}));
  EXPECT_EQ(split(5, 5), (Lengths{5, 0, 5}));
  EXPECT_EQ(split(0, 0), (Lengths{0, 10}));
  EXPECT_EQ(split(10, 10), (Lengths{10, 0}));
}

TEST(RichText, TheFirstPieceKeepsTheFontObject) {
  RichText text = TextInRuns({10});
  const auto font = FontAt(text, 0);
  SetColor(text, 2, 4, 7);
  EXPECT_EQ(FontAt(text, 0), font);
  EXPECT_NE(FontAt(text, 2), font);
  EXPECT_NE(FontAt(text, 4), font);
  EXPECT_NE(FontAt(text, 2), FontAt(text, 4));
  text = TextInRuns({10});
  const auto other = FontAt(text, 0);
  SetColor(text, 0, 4, 7);
  EXPECT_EQ(FontAt(text, 0), other) << "the wanted piece is the first";
}

TEST(RichText, ASelectionAcrossRunsSplitsTheFirstAndTheLast) {
  RichText text = TextInRuns({4, 3, 5});
  Select(text, 2, 9);
  text.SetSelFontSize(20);
  EXPECT_EQ(LengthsOf(text), (Lengths{2, 2, 3, 2, 3}));
  EXPECT_EQ(ColorsOf(text), (Colors{0, 0, 1, 2, 2}));
}

TEST(RichText, ASelectionOfWholeRunsSplitsNone) {
  RichText text = TextInRuns({4, 3, 5});
  Select(text, 4, 12);
  text.SetSelFontSize(20);
  EXPECT_EQ(LengthsOf(text), (Lengths{4, 3, 5}));
  EXPECT_EQ(text.Runs()[0].Font->Size(), 10);
  EXPECT_EQ(text.Runs()[1].Font->Size(), 20);
  EXPECT_EQ(text.Runs()[2].Font->Size(), 20);
}

TEST(RichText, FormattingBackMergesAgain) {
  RichText text = TextInRuns({10});
  SetColor(text, 2, 4, 7);
  EXPECT_EQ(LengthsOf(text), (Lengths{2, 2, 6}));
  SetColor(text, 2, 4, 0);
  EXPECT_EQ(LengthsOf(text), (Lengths{10}));
}

TEST(RichText, ManyRunsOfOneFormatAreJoined) {
  RichText text = TextInRuns({4, 3, 5, 2});
  SetColor(text, 2, 12, 9);
  EXPECT_EQ(LengthsOf(text), (Lengths{2, 10, 2}));
  EXPECT_EQ(ColorsOf(text), (Colors{0, 9, 3}));
}

TEST(RichText, TheSelectionSurvivesWhereItJoinsTheRunBefore) {
  RichText text = TextInRuns({4, 4, 4});
  const auto font = FontAt(text, 4);
  SetColor(text, 4, 8, 0);
  EXPECT_EQ(LengthsOf(text), (Lengths{8, 4}));
  EXPECT_EQ(FontAt(text, 0), font);
}

TEST(RichText, TheSelectionSurvivesWhereItJoinsTheRunBehind) {
  RichText text = TextInRuns({4, 4, 4});
  const auto font = FontAt(text, 4);
  SetColor(text, 4, 8, 2);
  EXPECT_EQ(LengthsOf(text), (Lengths{4, 8}));
  EXPECT_EQ(FontAt(text, 4), font);
}

TEST(RichText, DeliberateAValueThatIsNoFormatRaisesWithTheRunsSplit) {
  RichText text = TextInRuns({10});
  Select(text, 2, 4);
  EXPECT_EQ(ErrorNumberOf([&] { text.SetSelColor("red"); }), Error::kTypeMismatch);
  EXPECT_EQ(LengthsOf(text), (Lengths{2, 2, 6}));
  Select(text, 6, 7);
  EXPECT_EQ(ErrorNumberOf([&] { text.SetSelFlag(&PDFFont::SetUnderline, Value::Null()); }),
            Error::kInvalidNull);
  EXPECT_EQ(LengthsOf(text), (Lengths{2, 2, 2, 1, 3}));
  EXPECT_EQ(ColorsOf(text), Colors(5, 0));
}

TEST(RichText, ReplacingInsideARunChangesItsLength) {
  RichText text = TextInRuns({10, 5});
  Replace(text, 3, 3, "ab");
  EXPECT_EQ(LengthsOf(text), (Lengths{12, 5}));
  EXPECT_EQ(text.Text(), "xxxabxxxxxxxxxxxx");
  Replace(text, 1, 11, "");
  EXPECT_EQ(LengthsOf(text), (Lengths{2, 5}));
}

TEST(RichText, DeliberateReplacingAcrossRunsLeavesTheFirstRunsLength) {
  RichText text = TextInRuns({4, 6});
  Replace(text, 2, 7, "a");
  EXPECT_EQ(LengthsOf(text), (Lengths{4, 3}));
  EXPECT_EQ(text.Text(), "xxaxxx");
}

TEST(RichText, DeliberateReplacingUpToTheEndOfTheNextRunRemovesIt) {
  RichText text = TextInRuns({4, 6, 2});
  Replace(text, 2, 10, "a");
  EXPECT_EQ(LengthsOf(text), (Lengths{4, 2}));
  EXPECT_EQ(ColorsOf(text), (Colors{0, 2}));
}

TEST(RichText, DeliberateReplacingStrikesTheRunAtTheOldNumber) {
  RichText text = TextInRuns({4, 1, 6, 2});
  Replace(text, 2, 11, "a");
  // Run 3 was the last one touched; now that run 2 is gone, number 3 is the one behind it.
  EXPECT_EQ(LengthsOf(text), (Lengths{4, 0}));
  EXPECT_EQ(ColorsOf(text), (Colors{0, 2}));
}

TEST(RichText, DeliberateReplacingRaises9WhereNoRunHasTheOldNumber) {
  RichText text = TextInRuns({4, 1, 6});
  EXPECT_EQ(ErrorNumberOf([&] { Replace(text, 2, 11, "a"); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(LengthsOf(text), (Lengths{4, 0}));
  EXPECT_EQ(text.Text(), "xxxxxxxxxxx");
  EXPECT_EQ(text.SelLength(), 9);
  RichText other = TextInRuns({4, 1, 6});
  EXPECT_NE(ErrorTextOf([&] { Replace(other, 2, 11, "a"); }).find("position 3 is outside 1 to 2"),
            std::string::npos);
}

TEST(RichText, WhatIsLeftOfTheLastRunGoesByItsLengthAndNotByTheText) {
  RichText text{RunFont(StandardFont())};
  text.SetText("abcdefghij");
  Select(text, 4, 10);
  text.SetSelFontSize(20);
  Replace(text, 2, 7, "XYZ");  // leaves runs of 4 and 3 for 8 units
  EXPECT_EQ(LengthsOf(text), (Lengths{4, 3}));
  Replace(text, 2, 7, "Q");
  EXPECT_EQ(text.Text(), "abQj");
  EXPECT_EQ(LengthsOf(text), Lengths{4});
  text.SetSelStart(4);
  EXPECT_EQ(text.SelFontSize(), 10);
}

TEST(RichText, WhatIsLeftOfTheLastRunIsNeverNegative) {
  RichText text = TextBeyondItsRuns();
  text.SetSelStart(20);
  text.SetSelText("ab");
  EXPECT_EQ(LengthsOf(text), (Lengths{4, 18})) << "16 before the caret, and 2";
  text = TextBeyondItsRuns();
  Replace(text, 1, 15, "a");
  EXPECT_EQ(LengthsOf(text), Lengths{4}) << "nothing is left, and the run goes";
}

TEST(RichText, ATextMayGrowByItself) {
  RichText text{RunFont(StandardFont())};
  text.SetText("ab");
  text.SetSelText(text.Text());
  text.SetSelText(text.Text());
  EXPECT_EQ(text.Text(), "abababab");
  EXPECT_EQ(LengthsOf(text), Lengths{8});
}

TEST(RichText, OnlyRunsWithTextToDrawAreDrawn) {
  RichText text{RunFont(StandardFont())};
  const auto drawn = [&] {
    std::vector<float> sizes;
    text.ForEachDrawnFont([&](const PDFFont& font) { sizes.push_back(font.Size()); });
    return sizes;
  };
  EXPECT_EQ(drawn(), std::vector<float>{});
  text.SetText("ab\n\ncd");
  const auto resize = [&](std::int32_t start, std::int32_t end, float size) {
    Select(text, start, end);
    text.SetSelFontSize(size);
  };
  resize(0, 2, 11);
  resize(2, 4, 12);  // line ends alone
  resize(4, 4, 13);  // nothing at all
  resize(5, 6, 14);
  EXPECT_EQ(LengthsOf(text), (Lengths{2, 2, 0, 1, 1}));
  EXPECT_EQ(drawn(), (std::vector<float>{11, 10, 14}));
}

TEST(RichText, ANewTextIsOneRunInTheFirstFormat) {
  RichText text = TextInRuns({4, 6});
  text.SetText("7 units");
  EXPECT_EQ(LengthsOf(text), (Lengths{7}));
  EXPECT_EQ(ColorsOf(text), (Colors{0}));
  EXPECT_EQ(text.SelStart(), 7);
}

TEST(RichText, DeliberateANewTextForThreeRunsOrMoreRemovesEveryOtherAndRaises9) {
  for (std::size_t count = 3; count <= 600; count += count < 8 ? 1 : 148) {
    RichText text = TextInRuns(Lengths(count, 2));
    EXPECT_EQ(ErrorNumberOf([&] { text.SetText("7 units"); }), Error::kSubscriptOutOfRange)
        << count;
    // As removing numbers 2, 3, ... one at a time leaves them.
    Colors colors;
    for (std::size_t color = 0; color < count; ++color) {
      colors.push_back(static_cast<std::int32_t>(color));
    }
    std::size_t failing = 2;
    for (; failing <= colors.size(); ++failing) {
      colors.erase(colors.begin() + static_cast<std::ptrdiff_t>(failing) - 1);
    }
    EXPECT_EQ(ColorsOf(text), colors) << count;
    EXPECT_EQ(LengthsOf(text), Lengths(colors.size(), 2)) << count;
    EXPECT_EQ(text.Text(), "7 units");
    RichText other = TextInRuns(Lengths(count, 2));
    const std::string error = ErrorTextOf([&] { other.SetText("7 units"); });
    EXPECT_NE(error.find("position " + std::to_string(failing) + " is outside 1 to " +
                         std::to_string(colors.size())),
              std::string::npos)
        << error;
  }
}

TEST(RichText, TheLastRunTakesWhatIsLeftOfALongerText) {
  RichText text = TextBeyondItsRuns();
  SetColor(text, 8, 9, 9);
  EXPECT_EQ(LengthsOf(text), (Lengths{4, 4, 1, 11}));
  EXPECT_EQ(ColorsOf(text), (Colors{0, 2, 9, 2}));
}

TEST(RichText, ACopyHasFontsOfItsOwn) {
  RichText source = TextInRuns({4, 2});
  Select(source, 3, 5);
  RichText copy = TextInRuns({1, 1, 1});
  copy.CopyFrom(source);
  EXPECT_EQ(copy.Text(), "xxxxxx");
  EXPECT_EQ(copy.SelStart(), 3);
  EXPECT_EQ(copy.SelLength(), 2);
  EXPECT_EQ(LengthsOf(copy), (Lengths{4, 2}));
  EXPECT_EQ(ColorsOf(copy), (Colors{0, 1}));
  EXPECT_NE(FontAt(copy, 0), FontAt(source, 0));
  EXPECT_NE(FontAt(copy, 4), FontAt(source, 4));
}

TEST(RichText, ACopyOfItselfKeepsItsFonts) {
  RichText text = TextInRuns({4, 2});
  const auto font = FontAt(text, 0);
  text.CopyFrom(text);
  EXPECT_EQ(FontAt(text, 0), font);
  EXPECT_EQ(LengthsOf(text), (Lengths{4, 2}));
}

// A naive model: each unit of the text has its own format.
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
  auto At(std::int32_t unit) { return model_.begin() + unit; }

  void SelectAnything() {
    const std::size_t start = random_.Below(model_.size() + 1);
    const std::size_t rest = model_.size() - start;
    const std::size_t length =
        random_.Chance(30) ? random_.Below(rest + 1) : std::min(rest, random_.Below(6));
    Select(text_, static_cast<std::int32_t>(start), static_cast<std::int32_t>(start + length));
  }

  void ChangeFormat() {
    const std::size_t what = random_.Below(4);
    const auto value = static_cast<std::int32_t>(random_.Below(3));
    const auto alignment = static_cast<PDFParaAlignment>(1 + value);
    std::int32_t start = text_.SelStart();
    std::int32_t end = start + text_.SelLength();
    if (what == 0) text_.SetSelColor(value);
    if (what == 1) text_.SetSelFontSize(static_cast<float>(10 + value));
    if (what == 2) text_.SetSelFlag(&PDFFont::SetUnderline, value == 1);
    if (what == 3) {
      text_.SetSelAlignment(alignment);
      start = 0;  // one paragraph, of which the last unit is left out
      end = std::max(0, static_cast<std::int32_t>(model_.size()) - 1);
    }
    std::for_each(At(start), At(end), [&](Format& format) {
      if (what == 0) format.color = value;
      if (what == 1) format.size = static_cast<float>(10 + value);
      if (what == 2) format.isUnderlined = value == 1;
      if (what == 3) format.alignment = alignment;
    });
  }

  // Only inside one run, which alone has a colour: deliberately, replacing across runs breaks what
  // the model stands for. The new text has the format that the selection tells.
  void ReplaceText() {
    if (!text_.SelColor()) return;
    const Format format{*text_.SelColor(), text_.SelAlignment(), text_.SelFontSize(),
                        *text_.SelFlag(&PDFFont::Underline)};
    const std::int32_t start = text_.SelStart();
    const std::int32_t end = start + text_.SelLength();
    const std::size_t added = random_.Below(6);
    text_.SetSelText(std::string(added, 'x'));
    model_.erase(At(start), At(end));
    model_.insert(At(start), added, format);
  }

  void ExpectSame() const {
    EXPECT_EQ(text_.Text().Utf16(), std::u16string(model_.size(), u'x'));
    std::vector<Format> formats;
    const TEXT_FORMAT_RANGE* before = nullptr;
    text_.Runs().ForEach([&](const TEXT_FORMAT_RANGE& run) {
      EXPECT_GE(run.Length, 0);
      EXPECT_FALSE(before != nullptr && before->IsFormatEquivalent(run)) << "neighbours alike";
      formats.insert(formats.end(), static_cast<std::size_t>(run.Length), FormatOf(run));
      before = &run;
    });
    EXPECT_TRUE(formats == model_);
  }

  Random random_;
  RichText text_{RunFont(StandardFont())};
  std::vector<Format> model_;
};

TEST_F(FormatOfEachUnit, IsWhatTheRunsSay) {
  SCOPED_TRACE(random_.Trace());
  for (int step = 0; step < 20000; ++step) {
    SelectAnything();
    // Short texts, in which everything happens at the ends, and long ones.
    const std::size_t grows = model_.size() < 20 ? 50 : model_.size() > 400 ? 0 : 20;
    if (random_.Chance(grows)) {
      text_.SetSelLength(0);
      ReplaceText();
    } else if (random_.Chance(15)) {
      ReplaceText();
    } else {
      ChangeFormat();
    }
    if (random_.Chance(1)) {
      RichText copy{RunFont(StandardFont())};
      copy.CopyFrom(text_);
      text_.CopyFrom(copy);
    }
    ExpectSame();
    if (HasFailure()) FAIL() << "at step " << step;
  }
}

// Random editing, the deliberate oddities included, run by run against the plainest program that
// keeps the rules.
class EditedRichText : public testing::Test {
 protected:
  struct Flag {
    void (PDFFont::*set)(bool);
    bool (PDFFont::*get)() const;
    bool RichTextModel::Font::*model;
  };
  // Bold and italic are faces of their own, which a font without a document does not find.
  static constexpr Flag kFlags[] = {
      {&PDFFont::SetUnderline, &PDFFont::Underline, &RichTextModel::Font::underline},
      {&PDFFont::SetStrikeOut, &PDFFont::StrikeOut, &RichTextModel::Font::strikeOut},
      {&PDFFont::SetSubscript, &PDFFont::Subscript, &RichTextModel::Font::subscript},
      {&PDFFont::SetSuperscript, &PDFFont::Superscript, &RichTextModel::Font::superscript}};

  std::u16string RandomText() {
    static constexpr char16_t kUnits[] = u"ab\r\ncd\u00E4\u20AC";
    std::u16string text;
    for (std::size_t size = random_.Below(9); size > 0; --size) text += kUnits[random_.Below(8)];
    return text;
  }

  void SelectAnything() {
    const std::size_t limit = model_.Text().size() + 4;
    const auto start = static_cast<std::int32_t>(random_.Below(limit)) - 2;
    text_.SetSelStart(start);
    model_.SetSelStart(start);
    const auto length = static_cast<std::int32_t>(random_.Below(limit));
    const std::int32_t signedLength = random_.Chance(20) ? -length : length;
    if (random_.Chance(30)) return;
    text_.SetSelLength(signedLength);
    model_.SetSelLength(signedLength);
  }

  void SetFlag() {
    const Flag& flag = kFlags[random_.Below(std::size(kFlags))];
    const bool value = random_.Chance(50);
    text_.SetSelFlag(flag.set, value);
    model_.ChangeSelection([&](auto& run) { (*run.font).*flag.model = value; });
  }

  void SetColorOrSize() {
    const auto number = static_cast<std::int32_t>(random_.Below(3));
    if (random_.Chance(50)) {
      text_.SetSelColor(number);
      return model_.ChangeSelection([&](auto& run) { run.color = number; });
    }
    text_.SetSelFontSize(static_cast<float>(number));
    model_.ChangeSelection([&](auto& run) { run.font->size = static_cast<float>(number); });
  }

  // One that the host keeps and may change.
  void SetFont() {
    host_ = {StandardFont(), std::make_shared<RichTextModel::Font>()};
    text_.SetSelFont(host_.first);
    model_.ChangeSelection([&](auto& run) { run.font = host_.second; });
  }

  void ChangeHostFont() {
    if (random_.Chance(50) && text_.SelFont()) host_ = {text_.SelFont(), model_.Selected()->font};
    if (!host_.first) return;
    const bool value = random_.Chance(50);
    host_.first->SetStrikeOut(value);
    host_.second->strikeOut = value;
  }

  // Runs are split, and nothing else is changed.
  void SetNoColor() {
    EXPECT_EQ(ErrorNumberOf([&] { text_.SetSelColor("red"); }), Error::kTypeMismatch);
    model_.SplitSelection();
  }

  void Align() {
    const auto alignment = static_cast<PDFParaAlignment>(random_.Below(4));
    text_.SetSelAlignment(alignment);
    model_.SetSelAlignment(alignment);
  }

  void CopyThereAndBack() {
    RichText other{RunFont(StandardFont())};
    RichTextModel otherModel;
    other.CopyFrom(text_);
    otherModel.CopyFrom(model_);
    text_.CopyFrom(other);
    model_.CopyFrom(otherModel);
  }

  void Edit() {
    const std::size_t what = random_.Below(100);
    const std::u16string text = RandomText();
    if (what < 25) {
      SetFlag();
    } else if (what < 50) {
      SetColorOrSize();
    } else if (what < 58) {
      SetFont();
    } else if (what < 60) {
      SetNoColor();
    } else if (what < 85) {
      EXPECT_EQ(ErrorNumberOf([&] { text_.SetSelText(text); }), model_.SetSelText(text));
    } else if (what < 86) {
      EXPECT_EQ(ErrorNumberOf([&] { text_.SetText(text); }), model_.SetText(text));
    } else if (what < 95) {
      Align();
    } else if (what < 97) {
      CopyThereAndBack();
    } else {
      ChangeHostFont();
    }
  }

  void StartAnew() {
    text_ = RichText{RunFont::CloneOf(*StandardFont())};
    model_ = RichTextModel();
  }

  void ExpectSameRun(const TEXT_FORMAT_RANGE& run, const RichTextModel::Run& expected) const {
    EXPECT_EQ(run.Length, expected.length);
    EXPECT_EQ(run.Color, expected.color);
    EXPECT_EQ(run.Alignment, expected.alignment);
    EXPECT_EQ(run.Font->Size(), expected.font->size);
    for (const Flag& flag : kFlags) {
      EXPECT_EQ(((*run.Font).*flag.get)(), (*expected.font).*flag.model);
    }
    EXPECT_EQ(&*run.Font == host_.first.get(), expected.font == host_.second);
  }

  void ExpectSame() {
    EXPECT_EQ(text_.Text().Utf16(), model_.Text());
    EXPECT_EQ(text_.SelText().Utf16(), model_.SelText());
    EXPECT_EQ(text_.SelStart(), model_.SelStart());
    EXPECT_EQ(text_.SelLength(), model_.SelLength());
    ASSERT_EQ(text_.Runs().Count(), model_.Runs().size());
    auto expected = model_.Runs().begin();
    text_.Runs().ForEach([&](const TEXT_FORMAT_RANGE& run) { ExpectSameRun(run, *expected++); });
    const auto selected = model_.Selected();
    EXPECT_EQ(text_.SelColor(), selected ? std::optional(selected->color) : std::nullopt);
    EXPECT_EQ(text_.SelFontSize(), selected ? selected->font->size : 0);
    EXPECT_EQ(text_.SelAlignment(), selected ? selected->alignment : alignNULL);
    for (const Flag& flag : kFlags) {
      EXPECT_EQ(text_.SelFlag(flag.get),
                selected ? std::optional((*selected->font).*flag.model) : std::nullopt);
    }
  }

  Random random_;
  RichText text_{RunFont::CloneOf(*StandardFont())};
  RichTextModel model_;
  // The font that the host has seen last; null at first.
  std::pair<std::shared_ptr<PDFFont>, std::shared_ptr<RichTextModel::Font>> host_;
};

TEST_F(EditedRichText, FollowsTheRulesRunByRun) {
  SCOPED_TRACE(random_.Trace());
  std::size_t mostRuns = 0;
  for (int step = 0; step < 40000; ++step) {
    SelectAnything();
    ExpectSame();
    Edit();
    ExpectSame();
    mostRuns = std::max(mostRuns, model_.Runs().size());
    // Now and then more runs than a block holds.
    if (model_.Text().size() > (step % 10000 < 2000 ? 400 : 40) || random_.Chance(1)) StartAnew();
    if (HasFailure()) FAIL() << "at step " << step;
  }
  EXPECT_GT(mostRuns, 15U) << "so that there was something to see";
}

}  // namespace
}  // namespace folivar::test
