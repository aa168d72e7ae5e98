// What is left when memory runs out: each allocation of a member fails in turn, and all must be as
// if the member had not been called.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <vector>

#include "folivar/folivar.h"
#include "tests/faults/FailingNew.h"
#include "tests/support/FakeFonts.h"

namespace folivar::test {
namespace {

// Calls `member` until it succeeds, each time with a later allocation failing, and `check` whenever
// it has not. Returns how often that was.
template <class Member, class Check>
std::size_t FailInTurn(Member member, Check check) {
  for (std::size_t number = 1;; ++number) {
    bool hasFailed = false;
    try {
      const FailingNew failing(number);
      member();
      hasFailed = failing.HasFailed();
    } catch (const std::bad_alloc&) {
      check();
      continue;
    }
    EXPECT_FALSE(hasFailed) << "allocation " << number << " failed without a word";
    return number - 1;
  }
}

TEST(OutOfMemory, AFaceThatCouldNotBeAddedIsNotListed) {
  const auto document = PDFDocument::Create();
  const std::size_t failures =
      FailInTurn([&] { document->Fonts()->Add("Courier"); },
                 [&] {
                   ASSERT_EQ(document->Fonts()->count(fontType1), 1);
                   ASSERT_FALSE(document->Fonts()->FontExists("Courier", fontType1));
                 });
  EXPECT_GT(failures, 1U);
  EXPECT_EQ(document->Fonts()->count(fontType1), 2);
}

TEST(OutOfMemory, ATrueTypeFaceThatCouldNotBeAddedIsNotListed) {
  const auto fonts = std::make_shared<FakeFonts>();
  fonts->AddFamily("Sans");
  const auto document = PDFDocument::Create({.systemFonts = fonts});
  const std::size_t failures =
      FailInTurn([&] { document->Fonts()->Add("Sans", fontTrueType); },
                 [&] { ASSERT_EQ(document->Fonts()->count(fontTrueType), 0); });
  EXPECT_GT(failures, 1U);
  EXPECT_EQ(document->Fonts()->count(fontTrueType), 1);
}

// A box of text in four runs.
class BoxInRuns : public testing::Test {
 protected:
  BoxInRuns() {
    box_->SetText(std::string(40, 'x'));
    for (int run = 0; run < 4; ++run) {
      Select(10 * run, 10);
      box_->SetSelColor(run);
    }
  }

  void Select(std::int32_t start, std::int32_t length) {
    box_->SetSelStart(start);
    box_->SetSelLength(length);
  }

  std::vector<std::optional<std::int32_t>> Colors() {
    std::vector<std::optional<std::int32_t>> colors;
    for (int unit = 0; unit < 40; ++unit) {
      Select(unit, 1);
      colors.push_back(box_->SelColor());
    }
    return colors;
  }

  std::shared_ptr<PDFDocument> document_ = PDFDocument::Create();
  std::shared_ptr<PDFTextBox> box_ = document_->Pages()->Add()->TextBoxes()->Add();
};

TEST_F(BoxInRuns, ASelectionThatCouldNotBeReplacedKeepsItsTextAndItsRuns) {
  const auto colors = Colors();
  const std::string longText(1000, 'y');
  const std::size_t failures = FailInTurn(
      [&] {
        Select(5, 20);
        box_->SetSelText(longText);
      },
      [&] {
        ASSERT_EQ(box_->Text(), std::string(40, 'x'));
        ASSERT_EQ(Colors(), colors);
      });
  EXPECT_GT(failures, 1U);
  EXPECT_EQ(box_->Text().Utf16().size(), 1020U);
}

}  // namespace
}  // namespace folivar::test
