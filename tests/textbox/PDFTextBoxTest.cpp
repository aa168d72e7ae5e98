#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "folivar/base/Error.h"
#include "folivar/folivar.h"
#include "tests/support/Content.h"
#include "tests/support/FakeFonts.h"
#include "tests/support/Random.h"
#include "tests/support/RichTextModel.h"
#include "tests/support/SavedDocument.h"
#include "tests/support/Tools.h"

// Expected measures come from Helvetica's published metrics at size 10: "W" 9.44 wide, descender
// 2.07 below the baseline.

namespace folivar::test {
namespace {

constexpr float kLargest = std::numeric_limits<float>::max();

class PDFTextBoxTest : public testing::Test {
 protected:
  void Select(std::int32_t start, std::int32_t length) {
    box_->SetSelStart(start);
    box_->SetSelLength(length);
  }

  // The colours of the text's runs, each with the length of its text, as selections tell them.
  std::string Runs() const {
    const auto copy = page_->TextBoxes()->Add();
    copy->Copy(box_);
    std::string runs;
    std::string before;
    int length = 0;
    const auto size = static_cast<std::int32_t>(copy->Text().Utf16().size());
    for (std::int32_t unit = 0; unit <= size; ++unit) {
      copy->SetSelStart(unit);
      copy->SetSelLength(1);
      const std::string color = unit < size ? std::to_string(copy->SelColor().value()) : "";
      if (unit > 0 && color != before) {
        runs += (runs.empty() ? "" : " ") + before + "*" + std::to_string(length);
        length = 0;
      }
      before = color;
      ++length;
    }
    page_->TextBoxes()->Remove(page_->TextBoxes()->count());
    return runs;
  }

  void Color(std::int32_t start, std::int32_t length, std::int32_t color) {
    Select(start, length);
    box_->SetSelColor(color);
  }

  std::shared_ptr<PDFDocument> document_ = PDFDocument::Create();
  std::shared_ptr<PDFPage> page_ = document_->Pages()->Add();
  std::shared_ptr<PDFTextBox> box_ = page_->TextBoxes()->Add("box");
};

TEST_F(PDFTextBoxTest, StartsWithTheDefaults) {
  EXPECT_EQ(box_->Parent(), page_);
  EXPECT_EQ(box_->Key(), "box");
  EXPECT_EQ(box_->Left(), 0);
  EXPECT_EQ(box_->Top(), 0);
  EXPECT_FLOAT_EQ(box_->Width(), 9.44F);
  EXPECT_FLOAT_EQ(box_->Height(), 6.07F);
  EXPECT_FLOAT_EQ(box_->Bottom(), -6.07F);
  EXPECT_FLOAT_EQ(box_->Right(), 9.44F);
  EXPECT_EQ(box_->MarginLeft(), 2);
  EXPECT_EQ(box_->MarginTop(), 2);
  EXPECT_EQ(box_->MarginRight(), 2);
  EXPECT_EQ(box_->MarginBottom(), 2);
  EXPECT_TRUE(box_->WordWrap());
  EXPECT_FALSE(box_->AutoSize());
  EXPECT_EQ(box_->BackColor(), 0xFFFFFF);
  EXPECT_EQ(box_->BorderColor(), 0);
  EXPECT_EQ(box_->BackStyle(), bsTransparent);
  EXPECT_EQ(box_->BorderWidth(), 1);
  EXPECT_EQ(box_->Text(), "");
  EXPECT_EQ(box_->SelStart(), 0);
  EXPECT_EQ(box_->SelLength(), 0);
  EXPECT_EQ(box_->SelText(), "");
  EXPECT_TRUE(box_->Tag().IsEmpty());
  EXPECT_EQ(box_->GraphicsState(), box_->GraphicsState());
}

TEST_F(PDFTextBoxTest, DeliberateTheFirstHeightIsTheDescendersDepthAndTheMargins) {
  EXPECT_FLOAT_EQ(box_->Height(), 2.07F + 2 + 2);
  page_->Font()->SetSize(20);
  EXPECT_FLOAT_EQ(page_->TextBoxes()->Add()->Height(), 4.14F + 2 + 2);
}

TEST_F(PDFTextBoxTest, StartsAsOneRunInACopyOfTheParentsFont) {
  page_->SetFont(document_->Fonts()->Add("Courier"));
  page_->Font()->SetSize(20);
  page_->Font()->SetUnderline(true);
  const auto box = page_->TextBoxes()->Add();
  EXPECT_NE(box->SelFont(), page_->Font());
  EXPECT_EQ(box->SelFont()->FontFace(), "Courier");
  EXPECT_EQ(box->SelFontSize(), 20);
  EXPECT_EQ(box->SelUnderline(), true);
  EXPECT_EQ(box->SelBold(), false);
  EXPECT_EQ(box->SelColor(), 0);
  EXPECT_EQ(box->SelAlignment(), alignLeft);
  EXPECT_FLOAT_EQ(box->Width(), 12) << "a character of Courier is 0.6 wide";
}

TEST_F(PDFTextBoxTest, ParentThatIsGoneRaises91) {
  auto boxes = page_->TextBoxes();
  document_->Pages()->Remove(1);
  page_.reset();
  EXPECT_EQ(ErrorNumberOf([&] { box_->Parent(); }), Error::kObjectNotSet);
  EXPECT_EQ(ErrorTextOf([&] { box_->Parent(); }),
            "PDFTextBox.Parent: PDFTextBox 'box': the owner is gone");
  box_->SetText("still usable");
  EXPECT_EQ(boxes->Add()->SelFontSize(), 10);
}

TEST_F(PDFTextBoxTest, EdgesAndSizesFollowEachOther) {
  box_->Move(100, 200, 20, 30);
  EXPECT_EQ(box_->Right(), 120);
  EXPECT_EQ(box_->Bottom(), 170);
  box_->SetBottom(150);
  EXPECT_EQ(box_->Height(), 50);
  EXPECT_EQ(box_->Top(), 200);
  box_->SetBottom(260);
  EXPECT_EQ(box_->Height(), 60) << "the old top is the bottom";
  EXPECT_EQ(box_->Top(), 260);
  box_->SetRight(150);
  EXPECT_EQ(box_->Width(), 50);
  box_->SetRight(70);
  EXPECT_EQ(box_->Left(), 70) << "the old left edge is the right one";
  EXPECT_EQ(box_->Width(), 30);
}

TEST_F(PDFTextBoxTest, NegativeSizesExtendToTheOtherSide) {
  box_->Move(100, 200, 20, 30);
  box_->SetWidth(-50);
  EXPECT_EQ(box_->Left(), 50);
  EXPECT_EQ(box_->Width(), 50);
  box_->SetHeight(-40);
  EXPECT_EQ(box_->Top(), 240);
  EXPECT_EQ(box_->Height(), 40);
}

TEST_F(PDFTextBoxTest, MoveSetsWhatIsGiven) {
  box_->Move(1, 2, 3, 4);
  box_->Move(10);
  EXPECT_EQ(box_->Left(), 10);
  EXPECT_EQ(box_->Top(), 2);
  box_->Move(10, {}, -5);
  EXPECT_EQ(box_->Left(), 5);
  EXPECT_EQ(box_->Width(), 5);
  EXPECT_EQ(box_->Height(), 4);
  box_->Move(0, 7, {}, -3);
  EXPECT_EQ(box_->Top(), 10);
  EXPECT_EQ(box_->Height(), 3);
}

TEST_F(PDFTextBoxTest, SumsBeyondASingleRaise6) {
  box_->Move(-kLargest, -kLargest, 10, 10);
  EXPECT_EQ(ErrorNumberOf([&] { box_->SetWidth(-kLargest); }), Error::kOverflow);
  EXPECT_EQ(box_->Width(), 10);
  EXPECT_EQ(ErrorNumberOf([&] { box_->SetRight(kLargest); }), Error::kOverflow);
  EXPECT_EQ(ErrorNumberOf([&] { box_->SetBottom(kLargest); }), Error::kOverflow);
  box_->SetHeight(kLargest);
  EXPECT_EQ(ErrorNumberOf([&] { box_->Bottom(); }), Error::kOverflow);
  box_->Move(kLargest, kLargest, kLargest, 1);
  EXPECT_EQ(ErrorNumberOf([&] { box_->Right(); }), Error::kOverflow);
  EXPECT_EQ(ErrorNumberOf([&] { box_->SetHeight(-kLargest); }), Error::kOverflow);
}

TEST_F(PDFTextBoxTest, PlainPropertiesAreKeptUnchecked) {
  box_->SetMargins(-1, -2, -3, -4);
  EXPECT_EQ(box_->MarginLeft(), -1);
  EXPECT_EQ(box_->MarginTop(), -2);
  EXPECT_EQ(box_->MarginRight(), -3);
  EXPECT_EQ(box_->MarginBottom(), -4);
  box_->SetMarginLeft(5);
  box_->SetMarginTop(6);
  box_->SetMarginRight(7);
  box_->SetMarginBottom(8);
  EXPECT_EQ(box_->MarginLeft(), 5);
  EXPECT_EQ(box_->MarginTop(), 6);
  EXPECT_EQ(box_->MarginRight(), 7);
  EXPECT_EQ(box_->MarginBottom(), 8);
  box_->SetBorderWidth(-1);
  EXPECT_EQ(box_->BorderWidth(), -1);
  box_->SetBackColor(1);
  EXPECT_EQ(box_->BackColor(), 1);
  box_->SetBorderColor(2);
  EXPECT_EQ(box_->BorderColor(), 2);
  box_->SetBackStyle(static_cast<PDFBackGroundStyle>(9));
  EXPECT_EQ(box_->BackStyle(), 9);
  box_->SetWordWrap(false);
  EXPECT_FALSE(box_->WordWrap());
  box_->SetAutoSize(true);
  EXPECT_TRUE(box_->AutoSize());
  box_->SetTag(document_->Fonts());
  EXPECT_EQ(*box_->Tag().As<std::shared_ptr<Object>>(), document_->Fonts());
}

TEST_F(PDFTextBoxTest, TextHasOneKindOfLineEnd) {
  box_->SetText("a\r\nb\rc");
  EXPECT_EQ(box_->Text(), "a\nb\nc");
  EXPECT_EQ(box_->SelStart(), 5);
  EXPECT_EQ(box_->SelLength(), 0);
  box_->SetText("\r\r\n\n\r");
  EXPECT_EQ(box_->Text(), "\n\n\n\n");
  box_->SetSelText("\r\nx\r");
  EXPECT_EQ(box_->Text(), "\n\n\n\n\nx\n");
}

TEST_F(PDFTextBoxTest, PositionsCountUtf16Units) {
  box_->SetText(u8"\u00E4\U0001F600b");
  EXPECT_EQ(box_->SelStart(), 4);
  Select(1, 2);
  EXPECT_EQ(box_->SelText(), u8"\U0001F600");
}

TEST_F(PDFTextBoxTest, TextThatIsNotUtf8Raises5AndChangesNothing) {
  box_->SetText("text");
  EXPECT_EQ(ErrorNumberOf([&] { box_->SetText("\xFF"); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorNumberOf([&] { box_->SetSelText("\xFF"); }), Error::kInvalidArgument);
  EXPECT_EQ(box_->Text(), "text");
}

TEST_F(PDFTextBoxTest, TheSelectionNeverLeavesTheText) {
  box_->SetText("12345");
  box_->SetSelStart(-3);
  EXPECT_EQ(box_->SelStart(), 0);
  box_->SetSelStart(1000);
  EXPECT_EQ(box_->SelStart(), 5);
  EXPECT_EQ(box_->SelLength(), 0);
  box_->SetSelStart(4);
  box_->SetSelLength(-10);
  EXPECT_EQ(box_->SelStart(), 0);
  EXPECT_EQ(box_->SelLength(), 4);
  EXPECT_EQ(box_->SelText(), "1234");
  box_->SetSelStart(3);
  EXPECT_EQ(box_->SelLength(), 0);
  box_->SetSelLength(1000);
  EXPECT_EQ(box_->SelText(), "45");
  box_->SetSelStart(3);
  box_->SetSelLength(-2);
  EXPECT_EQ(box_->SelText(), "23");
}

TEST_F(PDFTextBoxTest, ASelectionBeyond32BitsRaises6) {
  constexpr auto kMost = std::numeric_limits<std::int32_t>::max();
  box_->SetText("12345");
  box_->SetSelStart(1);
  EXPECT_EQ(ErrorNumberOf([&] { box_->SetSelLength(kMost); }), Error::kOverflow);
  EXPECT_EQ(box_->SelLength(), 0);
  box_->SetSelLength(kMost - 1);
  EXPECT_EQ(box_->SelLength(), 4);
  box_->SetSelLength(std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(box_->SelText(), "1");
}

TEST_F(PDFTextBoxTest, TextSetAtACaretTakesTheFormatThere) {
  box_->SetText("0123456789");
  Color(5, 5, 7);
  box_->SetSelStart(3);
  box_->SetSelText("ab");
  EXPECT_EQ(box_->Text(), "012ab3456789");
  EXPECT_EQ(box_->SelStart(), 5);
  EXPECT_EQ(Runs(), "0*7 7*5");
  box_->SetSelStart(7);
  box_->SetSelText("c");
  EXPECT_EQ(Runs(), "0*7 7*6") << "a boundary belongs to the run behind it";
}

TEST_F(PDFTextBoxTest, ACaretsFormatWaitsForItsText) {
  box_->SetText("0123456789");
  Color(5, 0, 7);
  EXPECT_EQ(box_->SelColor(), 7);
  box_->SetSelText("ab");
  EXPECT_EQ(Runs(), "0*5 7*2 0*5");
}

TEST_F(PDFTextBoxTest, FormattingBackGivesOneRunAgain) {
  box_->SetText("0123456789");
  Select(2, 2);
  box_->SetSelUnderline(true);
  Select(0, 10);
  EXPECT_EQ(box_->SelUnderline(), std::nullopt);
  Select(2, 2);
  EXPECT_EQ(box_->SelUnderline(), true);
  box_->SetSelUnderline(false);
  Select(0, 10);
  EXPECT_EQ(box_->SelUnderline(), false);
}

TEST_F(PDFTextBoxTest, ASelectionThatSpansRunsHasNoOneFormat) {
  box_->SetText("0123456789");
  Color(5, 5, 7);
  Select(0, 10);
  EXPECT_EQ(box_->SelFont(), nullptr);
  EXPECT_EQ(box_->SelFontSize(), 0);
  EXPECT_EQ(box_->SelAlignment(), alignNULL);
  EXPECT_EQ(box_->SelColor(), std::nullopt);
  EXPECT_EQ(box_->SelBold(), std::nullopt);
  EXPECT_EQ(box_->SelItalic(), std::nullopt);
  EXPECT_EQ(box_->SelUnderline(), std::nullopt);
  EXPECT_EQ(box_->SelStrikeOut(), std::nullopt);
  EXPECT_EQ(box_->SelSubscript(), std::nullopt);
  EXPECT_EQ(box_->SelSuperscript(), std::nullopt);
}

// An empty run parts two runs of the same format: a caret was given a format, and nothing was set
// there.
TEST_F(PDFTextBoxTest, DeliberateASelectionThatSpansRunsOfOneFormatHasNone) {
  box_->SetText("0123456789");
  Color(5, 0, 7);
  Select(4, 2);
  EXPECT_EQ(box_->SelUnderline(), std::nullopt);
  EXPECT_EQ(box_->SelFontSize(), 0);
}

TEST_F(PDFTextBoxTest, EveryFlagIsSetAndRead) {
  box_->SetText("text");
  Select(0, 4);
  box_->SetSelStrikeOut(1);
  box_->SetSelSubscript(0.5);
  box_->SetSelSuperscript(true);
  box_->SetSelUnderline(-1);
  EXPECT_EQ(box_->SelStrikeOut(), true);
  EXPECT_EQ(box_->SelSubscript(), true);
  EXPECT_EQ(box_->SelSuperscript(), true);
  EXPECT_EQ(box_->SelUnderline(), true);
  EXPECT_TRUE(box_->SelFont()->StrikeOut());
  EXPECT_TRUE(box_->SelFont()->Subscript());
  EXPECT_TRUE(box_->SelFont()->Superscript());
  EXPECT_TRUE(box_->SelFont()->Underline());
  box_->SetSelStrikeOut(0);
  EXPECT_EQ(box_->SelStrikeOut(), false);
  EXPECT_EQ(box_->SelSubscript(), true);
  EXPECT_EQ(box_->SelSuperscript(), true);
  box_->SetSelFontSize(12.5F);
  EXPECT_EQ(box_->SelFontSize(), 12.5F);
}

// There the style is a face of its own, by name.
TEST_F(PDFTextBoxTest, BoldAndItalicLeaveStandardFacesAsTheyAre) {
  box_->SetText("text");
  Select(0, 4);
  box_->SetSelBold(true);
  box_->SetSelItalic(true);
  EXPECT_EQ(box_->SelBold(), false);
  EXPECT_EQ(box_->SelItalic(), false);
  EXPECT_EQ(box_->SelFont()->FontFace(), "Helvetica");
}

TEST_F(PDFTextBoxTest, DeliberateAValueThatIsNoFormatRaisesWithTheRunsSplit) {
  box_->SetText("0123456789");
  Select(2, 3);
  EXPECT_EQ(ErrorNumberOf([&] { box_->SetSelColor("red"); }), Error::kTypeMismatch);
  EXPECT_EQ(box_->SelColor(), 0);
  Select(0, 10);
  EXPECT_EQ(box_->SelColor(), std::nullopt) << "three runs";
  EXPECT_EQ(Runs(), "0*10");
  EXPECT_EQ(ErrorNumberOf([&] { box_->SetSelColor(Value::Null()); }), Error::kInvalidNull);
  EXPECT_EQ(ErrorNumberOf([&] { box_->SetSelColor(std::int64_t{1} << 31); }), Error::kOverflow);
  EXPECT_EQ(ErrorNumberOf([&] { box_->SetSelBold("yes"); }), Error::kTypeMismatch);
  EXPECT_EQ(ErrorNumberOf([&] { box_->SetSelUnderline(Value::Null()); }), Error::kInvalidNull);
  EXPECT_EQ(ErrorNumberOf([&] { box_->SetSelUnderline(Value()); }), Error::kTypeMismatch);
  EXPECT_NE(ErrorTextOf([&] { box_->SetSelItalic("yes"); }).find("PDFTextBox.SelItalic: "),
            std::string::npos);
}

TEST_F(PDFTextBoxTest, TheFontOfASelectionIsTheFontItself) {
  box_->SetText("0123456789");
  box_->SelFont()->SetSize(20);
  EXPECT_EQ(box_->SelFontSize(), 20);
}

TEST_F(PDFTextBoxTest, AFontThatIsSetIsSharedByAllOfTheSelection) {
  box_->SetText("0123456789");
  Color(2, 2, 7);
  const auto font = document_->Fonts()->Add("Times-Roman");
  Select(1, 8);
  box_->SetSelFont(font);
  Select(2, 2);
  EXPECT_EQ(box_->SelFont(), font);
  Select(5, 2);
  EXPECT_EQ(box_->SelFont(), font);
  box_->SetSelStart(0);
  EXPECT_NE(box_->SelFont(), font);
  font->SetSize(33);
  Select(2, 2);
  EXPECT_EQ(box_->SelFontSize(), 33);
  box_->SetSelFontSize(44);
  EXPECT_EQ(font->Size(), 44) << "what is changed on one run shows on all";
  Select(5, 2);
  EXPECT_EQ(box_->SelFontSize(), 44);
}

TEST_F(PDFTextBoxTest, SettingNoFontChangesNothing) {
  box_->SetText("0123456789");
  Select(2, 3);
  box_->SetSelFont(nullptr);
  Select(0, 10);
  EXPECT_NE(box_->SelFont(), nullptr) << "still one run";
}

TEST_F(PDFTextBoxTest, AFontOfAnotherDocumentRaises5) {
  box_->SetText("0123456789");
  Select(2, 3);
  const auto other = PDFDocument::Create();
  EXPECT_EQ(ErrorNumberOf([&] { box_->SetSelFont(other->Fonts()->Add("Courier")); }),
            Error::kInvalidArgument);
  Select(0, 10);
  EXPECT_NE(box_->SelFont(), nullptr) << "still one run";
}

TEST_F(PDFTextBoxTest, DeliberateATextForThreeRunsIsSetAndRaises9) {
  box_->SetText("0123456789");
  Color(2, 2, 7);
  Select(8, 2);
  EXPECT_EQ(ErrorNumberOf([&] { box_->SetText("new text\r"); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(box_->Text(), "new text\n");
  EXPECT_EQ(box_->SelStart(), 8) << "as far as it lies in the new text";
  EXPECT_EQ(box_->SelLength(), 1);
  EXPECT_NE(ErrorTextOf([&] {
              Color(2, 2, 8);
              box_->SetText("x");
            }).find("PDFTextBox.Text: position"),
            std::string::npos);
}

TEST_F(PDFTextBoxTest, DeliberateReplacingAcrossRunsLeavesTheFirstRunsLength) {
  box_->SetText("0123456789");
  Color(5, 5, 7);
  Select(3, 4);
  box_->SetSelText("ab");
  EXPECT_EQ(box_->Text(), "012ab789");
  EXPECT_EQ(box_->SelStart(), 5);
  EXPECT_EQ(Runs(), "0*5 7*3");
  Select(3, 3);
  box_->SetSelText("");
  EXPECT_EQ(box_->Text(), "01289");
  EXPECT_EQ(Runs(), "0*5") << "the text of the other run counts as the first one's";
}

TEST_F(PDFTextBoxTest, DeliberateReplacingUpToTheEndOfTheNextRunRemovesIt) {
  box_->SetText("0123456789");
  Color(5, 5, 7);
  Select(3, 7);
  box_->SetSelText("a");
  EXPECT_EQ(box_->Text(), "012a");
  EXPECT_EQ(Runs(), "0*4");
  Select(0, 4);
  EXPECT_EQ(box_->SelColor(), 0) << "one run";
}

TEST_F(PDFTextBoxTest, DeliberateReplacingThatRaises9LeavesTheText) {
  box_->SetText("0123456789");
  Color(3, 3, 7);
  Select(1, 9);
  EXPECT_EQ(ErrorNumberOf([&] { box_->SetSelText("a"); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(box_->Text(), "0123456789");
  EXPECT_EQ(box_->SelStart(), 1);
}

TEST_F(PDFTextBoxTest, DeliberateAParagraphBeginsOnTheLineEndBeforeIt) {
  box_->SetText("ab\ncd\nef");
  box_->SetSelStart(4);
  box_->SetSelAlignment(alignCenter);
  const std::vector<PDFParaAlignment> expected{alignLeft,   alignLeft, alignCenter, alignCenter,
                                               alignCenter, alignLeft, alignLeft,   alignLeft};
  for (std::int32_t unit = 0; unit < 8; ++unit) {
    Select(unit, 1);
    EXPECT_EQ(box_->SelAlignment(), expected[static_cast<std::size_t>(unit)]) << unit;
  }
}

TEST_F(PDFTextBoxTest, DeliberateTheLastParagraphEndsOneUnitEarly) {
  box_->SetText("ab\ncd");
  box_->SetSelStart(5);
  box_->SetSelAlignment(alignRight);
  Select(2, 2);
  EXPECT_EQ(box_->SelAlignment(), alignRight);
  Select(4, 1);
  EXPECT_EQ(box_->SelAlignment(), alignLeft);
}

TEST_F(PDFTextBoxTest, AligningTouchesEveryParagraphOfTheSelection) {
  box_->SetText("ab\ncd\nef\ngh");
  Select(4, 3);
  box_->SetSelAlignment(alignRight);
  Select(2, 6);
  EXPECT_EQ(box_->SelAlignment(), alignRight);
  Select(1, 1);
  EXPECT_EQ(box_->SelAlignment(), alignLeft);
  Select(8, 1);
  EXPECT_EQ(box_->SelAlignment(), alignLeft);
}

TEST_F(PDFTextBoxTest, NoAlignmentChangesNothing) {
  box_->SetText("ab\ncd\nef");
  Select(3, 2);
  box_->SetSelAlignment(alignNULL);
  Select(0, 8);
  EXPECT_EQ(box_->SelAlignment(), alignLeft) << "still one run";
}

TEST_F(PDFTextBoxTest, AligningAnEmptyTextAlignsTheCaretsRun) {
  box_->SetSelAlignment(alignCenter);
  EXPECT_EQ(box_->SelAlignment(), alignCenter);
  box_->SetText("text");
  Select(0, 4);
  EXPECT_EQ(box_->SelAlignment(), alignCenter);
}

TEST_F(PDFTextBoxTest, AnAlignmentNotListedIsKept) {
  box_->SetText("text");
  Select(0, 3);
  box_->SetSelAlignment(static_cast<PDFParaAlignment>(7));
  EXPECT_EQ(box_->SelAlignment(), 7);
}

TEST_F(PDFTextBoxTest, ACopyTakesTextFormatsPlaceAndSelection) {
  const auto source = page_->TextBoxes()->Add();
  source->Move(1, 2, 3, 4);
  source->SetMargins(5, 6, 7, 8);
  source->SetWordWrap(false);
  source->SetAutoSize(true);
  source->SetText("0123456789");
  source->SetSelStart(2);
  source->SetSelLength(3);
  source->SetSelColor(7);
  source->SetBackColor(9);
  source->SetBorderColor(9);
  source->SetBackStyle(bsOpaque);
  source->SetBorderWidth(9);
  source->SetTag(9);
  Color(0, 0, 5);
  box_->Copy(source);
  EXPECT_EQ(box_->Left(), 1);
  EXPECT_EQ(box_->Top(), 2);
  EXPECT_EQ(box_->Width(), 3);
  EXPECT_EQ(box_->Height(), 4);
  EXPECT_EQ(box_->MarginLeft(), 5);
  EXPECT_EQ(box_->MarginTop(), 6);
  EXPECT_EQ(box_->MarginRight(), 7);
  EXPECT_EQ(box_->MarginBottom(), 8);
  EXPECT_FALSE(box_->WordWrap());
  EXPECT_TRUE(box_->AutoSize());
  EXPECT_EQ(box_->Text(), "0123456789");
  EXPECT_EQ(box_->SelStart(), 2);
  EXPECT_EQ(box_->SelLength(), 3);
  EXPECT_EQ(Runs(), "0*2 7*3 0*5");
  EXPECT_NE(box_->SelFont(), source->SelFont());
  EXPECT_EQ(box_->Key(), "box");
  EXPECT_EQ(box_->BackColor(), 0xFFFFFF);
  EXPECT_EQ(box_->BorderColor(), 0);
  EXPECT_EQ(box_->BackStyle(), bsTransparent);
  EXPECT_EQ(box_->BorderWidth(), 1);
  EXPECT_TRUE(box_->Tag().IsEmpty());
}

TEST_F(PDFTextBoxTest, ACopyIntoItselfChangesNothing) {
  box_->SetText("0123456789");
  Color(2, 3, 7);
  const auto font = box_->SelFont();
  box_->Copy(box_);
  EXPECT_EQ(box_->SelFont(), font);
  EXPECT_EQ(box_->SelStart(), 2);
  EXPECT_EQ(Runs(), "0*2 7*3 0*5");
}

TEST_F(PDFTextBoxTest, ACopyOfWhatCannotBeCopiedRaises) {
  box_->SetText("text");
  EXPECT_EQ(ErrorNumberOf([&] { box_->Copy(nullptr); }), Error::kObjectNotSet);
  const auto other = PDFDocument::Create();
  const auto foreign = other->Pages()->Add()->TextBoxes()->Add();
  EXPECT_EQ(ErrorNumberOf([&] { box_->Copy(foreign); }), Error::kInvalidArgument);
  EXPECT_EQ(box_->Text(), "text");
}

// Helvetica's leading is 11.56, the bottom of its box 2.25 below the baseline; "one " is 19.46
// wide, "two " 18.34, "three" 22.79.
TEST_F(PDFTextBoxTest, SizingWithoutWordWrapFitsTheWidestLine) {
  box_->SetWordWrap(false);
  box_->SetText("one two \nthree\n");
  box_->SetMargins(1, 2, 3, 4);
  box_->AutoSizeNow();
  EXPECT_TRUE(box_->AutoSize());
  EXPECT_FLOAT_EQ(box_->Width(), 37.8F + 4);
  EXPECT_FLOAT_EQ(box_->Height(), 2 * 11.56F + 2.25F + 6);
  box_->AutoSizeNow();
  EXPECT_FLOAT_EQ(box_->Width(), 37.8F + 4);
}

TEST_F(PDFTextBoxTest, DeliberateSizingWithWordWrapWidensTheBoxByItsMarginsEachTime) {
  box_->SetWidth(50);
  box_->SetText("one two three");
  box_->AutoSizeNow();
  EXPECT_EQ(box_->Width(), 54);
  EXPECT_FLOAT_EQ(box_->Height(), 2 * 11.56F + 2.25F + 4);
  box_->AutoSizeNow();
  EXPECT_EQ(box_->Width(), 58);
}

TEST_F(PDFTextBoxTest, SizingAnEmptyTextLeavesTheMargins) {
  box_->SetWordWrap(false);
  box_->AutoSizeNow();
  EXPECT_EQ(box_->Width(), 4);
  EXPECT_EQ(box_->Height(), 4);
}

// Sizes are set as a host sets them: -7 by -20 is turned to the left and upwards.
TEST_F(PDFTextBoxTest, SizingBelow0TurnsTheBoxOver) {
  box_->SetWordWrap(false);
  box_->Move(100, 50);
  box_->SetMargins(-3, -10, -4, -10);
  box_->AutoSizeNow();
  EXPECT_EQ(box_->Left(), 93);
  EXPECT_EQ(box_->Width(), 7);
  EXPECT_EQ(box_->Top(), 70);
  EXPECT_EQ(box_->Height(), 20);
}

TEST_F(PDFTextBoxTest, SizingBeyondASingleRaises6AndKeepsTheSize) {
  box_->SetWordWrap(false);
  box_->SetText("text");
  box_->SetMargins(kLargest, 0, kLargest, 0);
  const float height = box_->Height();
  EXPECT_EQ(ErrorNumberOf([&] { box_->AutoSizeNow(); }), Error::kOverflow);
  EXPECT_EQ(box_->Height(), height);
  EXPECT_EQ(ErrorTextOf([&] { box_->AutoSizeNow(); }),
            "PDFTextBox.AutoSizeNow: PDFTextBox 'box': a sum of coordinates is beyond a single");
  EXPECT_FALSE(box_->AutoSize()) << "later saves do not fail for it";
}

TEST_F(PDFTextBoxTest, DeliberateEverySaveSizesABoxThatSizesItself) {
  box_->SetWidth(50);
  box_->SetText("one two three");
  box_->SetAutoSize(true);
  Save(*document_, "first.pdf", Check::kForm);
  EXPECT_EQ(box_->Width(), 54);
  const SavedDocument second = Save(*document_, "second.pdf", Check::kForm);
  EXPECT_EQ(box_->Width(), 58);
  EXPECT_NE(second.pdf.Stream(5).find(" 58  -29.37  re\n"), std::string::npos)
      << second.pdf.Stream(5);
}

TEST_F(PDFTextBoxTest, AFaceSetForASelectionIsListedAtOnce) {
  box_->SetText("0123456789");
  Select(0, 3);
  box_->SetSelFont(document_->Fonts()->Add("Courier"));
  page_->SetFont(document_->Fonts()->Add("Times-Roman"));
  Select(0, 10);
  box_->SetSelFont(document_->Fonts()->Add("Symbol"));
  const SavedDocument saved = Save(*document_, "fonts.pdf", Check::kForm);
  EXPECT_NE(saved.pdf.Object(4).find("/Font << /F0 6 0 R\n /F1 7 0 R\n /F2 8 0 R\n /F3 9 0 R\n >>"),
            std::string::npos)
      << saved.pdf.Object(4);
}

TEST_F(PDFTextBoxTest, FacesThatCameWithACopyAreListedInTheOrderOfTheirRuns) {
  const auto times = document_->Fonts()->Add("Times-Roman");
  const auto courier = document_->Fonts()->Add("Courier");
  box_->SetText("0123456789");
  Select(0, 5);
  box_->SetSelFont(courier);
  Select(5, 5);
  box_->SetSelFont(times);
  const auto other = document_->Pages()->Add();
  other->TextBoxes()->Add()->Copy(box_);
  const SavedDocument saved = Save(*document_, "fonts.pdf");
  EXPECT_NE(saved.pdf.Object(6).find("/Font << /F0 8 0 R\n /F2 10 0 R\n /F1 9 0 R\n >>"),
            std::string::npos)
      << saved.pdf.Object(6);
}

TEST_F(PDFTextBoxTest, AnErrorOfTheSaveNamesTheBox) {
  box_->SetBorderWidth(3e9F);
  const auto save = [&] { Save(*document_, "error.broken", Check::kForm); };
  EXPECT_EQ(ErrorNumberOf(save), Error::kOverflow);
  EXPECT_NE(ErrorTextOf(save).find("PDFTextBox 'box': "), std::string::npos);
  box_->SetBorderWidth(1);
  page_->TextBoxes()->Add()->SetLeft(3e9F);
  EXPECT_NE(ErrorTextOf(save).find("PDFTextBox without a key: "), std::string::npos);
}

// Whatever editing has left: out of step by a failed text and by replacing across runs.
TEST_F(PDFTextBoxTest, WhatIsOutOfStepIsDrawnAndSaved) {
  box_->Move(72, 700, 200, 100);
  box_->SetText("0123456789");
  Color(2, 2, 0xFF0000);
  EXPECT_EQ(ErrorNumberOf([&] { box_->SetText("a text that is longer than the formats"); }),
            Error::kSubscriptOutOfRange);
  const auto shorter = page_->TextBoxes()->Add();
  shorter->Move(72, 500, 200, 100);
  shorter->SetText("0123456789");
  shorter->SetSelStart(5);
  shorter->SetSelLength(5);
  shorter->SetSelColor(7);
  shorter->SetSelStart(1);
  shorter->SetSelLength(6);
  shorter->SetSelText("");
  const SavedDocument saved = Save(*document_, "step.pdf");
  EXPECT_EQ(TextOf(saved.path), "a text that is longer than the formats\n0789\n\f");
}

// Random editing, the deliberate oddities included, against the plainest program that keeps the
// rules.
class EditedTextBox : public PDFTextBoxTest {
 protected:
  // In a family whose styles the document has all got.
  EditedTextBox() {
    const auto fonts = std::make_shared<FakeFonts>();
    fonts->AddFamily("Sans");
    for (const char* style : {"Bold", "Italic", "BoldItalic"}) {
      fonts->faces["Sans," + std::string(style)] = fonts->faces.at("Sans");
    }
    document_ = PDFDocument::Create({.systemFonts = fonts});
    page_ = document_->Pages()->Add();
    page_->SetFont(document_->Fonts()->Add("Sans", fontTrueType));
    const auto styled = page_->Font()->Clone();
    styled->SetBold(true);
    styled->SetItalic(true);
    page_->Font()->Clone()->SetItalic(true);
    box_ = page_->TextBoxes()->Add();
  }

  std::u16string RandomText() {
    static constexpr char16_t kUnits[] = u"ab \n\rxyz";
    std::u16string text;
    for (std::size_t size = random_.Below(8); size > 0; --size) text += kUnits[random_.Below(8)];
    return text;
  }

  void SelectAnything() {
    const auto limit = model_.Text().size() + 4;
    const auto start = static_cast<std::int32_t>(random_.Below(limit)) - 2;
    box_->SetSelStart(start);
    model_.SetSelStart(start);
    if (random_.Chance(30)) return;
    const auto length = static_cast<std::int32_t>(random_.Below(limit));
    const std::int32_t signedLength = random_.Chance(20) ? -length : length;
    box_->SetSelLength(signedLength);
    model_.SetSelLength(signedLength);
  }

  void ChangeFormat() {
    const bool flag = random_.Chance(50);
    const auto number = static_cast<std::int32_t>(random_.Below(3));
    switch (random_.Below(8)) {
      case 0:
        box_->SetSelColor(number);
        return model_.ChangeSelection([&](auto& run) { run.color = number; });
      case 1:
        box_->SetSelFontSize(static_cast<float>(number));
        return model_.ChangeSelection(
            [&](auto& run) { run.font->size = static_cast<float>(number); });
      case 2:
        box_->SetSelUnderline(flag);
        return model_.ChangeSelection([&](auto& run) { run.font->underline = flag; });
      case 3:
        box_->SetSelStrikeOut(flag);
        return model_.ChangeSelection([&](auto& run) { run.font->strikeOut = flag; });
      case 4:
        box_->SetSelBold(flag);
        return model_.ChangeSelection([&](auto& run) { run.font->bold = flag; });
      case 5:
        box_->SetSelItalic(flag);
        return model_.ChangeSelection([&](auto& run) { run.font->italic = flag; });
      case 6:
        box_->SetSelSubscript(flag);
        return model_.ChangeSelection([&](auto& run) { run.font->subscript = flag; });
      default:
        box_->SetSelSuperscript(flag);
        return model_.ChangeSelection([&](auto& run) { run.font->superscript = flag; });
    }
  }

  void SetFont() {
    const auto font = page_->Font()->Clone();
    font->SetUnderline(random_.Chance(50));
    const auto modelFont = std::make_shared<RichTextModel::Font>();
    modelFont->underline = font->Underline();
    box_->SetSelFont(font);
    model_.ChangeSelection([&](auto& run) { run.font = modelFont; });
  }

  // Asks for the font of the selection, which is the same object whenever it is the same one there.
  void HoldFont() {
    const auto run = model_.Selected();
    const auto font = box_->SelFont();
    ASSERT_EQ(font != nullptr, run.has_value());
    if (!run) return;
    for (const auto& [held, modelHeld] : held_) {
      EXPECT_EQ(font == held, run->font == modelHeld);
    }
    held_.emplace_back(font, run->font);
    if (held_.size() > 10) held_.erase(held_.begin());
  }

  void ChangeHeldFont() {
    if (held_.empty()) return;
    const auto& [font, modelFont] = held_[random_.Below(held_.size())];
    modelFont->size = static_cast<float>(random_.Below(3));
    font->SetSize(modelFont->size);
  }

  void SetText() {
    const std::u16string text = RandomText();
    EXPECT_EQ(ErrorNumberOf([&] { box_->SetText(text); }), model_.SetText(text));
  }

  void SetSelText() {
    const std::u16string text = RandomText();
    EXPECT_EQ(ErrorNumberOf([&] { box_->SetSelText(text); }), model_.SetSelText(text));
  }

  void Align() {
    const auto alignment = static_cast<PDFParaAlignment>(random_.Below(4));
    box_->SetSelAlignment(alignment);
    model_.SetSelAlignment(alignment);
  }

  void CopyThereAndBack() {
    const auto other = page_->TextBoxes()->Add();
    RichTextModel otherModel;
    other->Copy(box_);
    otherModel.CopyFrom(model_);
    box_->Copy(other);
    model_.CopyFrom(otherModel);
    page_->TextBoxes()->Remove(page_->TextBoxes()->count());
  }

  void StartAnew() {
    box_ = page_->TextBoxes()->Add();
    model_ = RichTextModel();
    page_->TextBoxes()->Remove(page_->TextBoxes()->count());
  }

  void ExpectSame() {
    EXPECT_EQ(box_->Text().Utf16(), model_.Text());
    EXPECT_EQ(box_->SelStart(), model_.SelStart());
    EXPECT_EQ(box_->SelLength(), model_.SelLength());
    EXPECT_EQ(box_->SelText().Utf16(), model_.SelText());
    const auto run = model_.Selected();
    EXPECT_EQ(box_->SelFontSize(), run ? run->font->size : 0);
    EXPECT_EQ(box_->SelAlignment(), run ? run->alignment : alignNULL);
    EXPECT_EQ(box_->SelColor(), run ? std::optional(run->color) : std::nullopt);
    const auto flag = [&](bool RichTextModel::Font::*which) {
      return run ? std::optional((*run->font).*which) : std::nullopt;
    };
    EXPECT_EQ(box_->SelBold(), flag(&RichTextModel::Font::bold));
    EXPECT_EQ(box_->SelItalic(), flag(&RichTextModel::Font::italic));
    EXPECT_EQ(box_->SelUnderline(), flag(&RichTextModel::Font::underline));
    EXPECT_EQ(box_->SelStrikeOut(), flag(&RichTextModel::Font::strikeOut));
    EXPECT_EQ(box_->SelSubscript(), flag(&RichTextModel::Font::subscript));
    EXPECT_EQ(box_->SelSuperscript(), flag(&RichTextModel::Font::superscript));
  }

  Random random_;
  RichTextModel model_;
  std::vector<std::pair<std::shared_ptr<PDFFont>, std::shared_ptr<RichTextModel::Font>>> held_;
};

TEST_F(EditedTextBox, FollowsTheRules) {
  SCOPED_TRACE(random_.Trace());
  std::size_t mostRuns = 0;
  for (int step = 0; step < 60000; ++step) {
    SelectAnything();
    ExpectSame();
    const std::size_t what = random_.Below(100);
    if (what < 50) {
      ChangeFormat();
    } else if (what < 60) {
      SetFont();
    } else if (what < 85) {
      SetSelText();
    } else if (what < 95) {
      Align();
    } else if (what < 97) {
      CopyThereAndBack();
    } else if (what < 98) {
      SetText();
    } else {
      HoldFont();
    }
    if (random_.Chance(5)) ChangeHeldFont();
    ExpectSame();
    mostRuns = std::max(mostRuns, model_.Runs().size());
    if (model_.Text().size() > 60 || random_.Chance(1)) StartAnew();
    if (HasFailure()) FAIL() << "at step " << step;
  }
  EXPECT_GT(mostRuns, 15U) << "so that there was something to see";
}

}  // namespace
}  // namespace folivar::test
