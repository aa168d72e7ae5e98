#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <memory>
#include <string>

#include "folivar/base/Error.h"
#include "folivar/folivar.h"
#include "folivar/page/Canvas.h"
#include "tests/support/BmpFile.h"
#include "tests/support/Content.h"
#include "tests/support/SavedDocument.h"

// Expected measures come from Helvetica's published metrics at size 10: leading 11.56, ascender
// 7.18, "A" 6.67 wide, underline 1 below the baseline and 0.5 thick.

namespace folivar::test {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();

// Catalog, outline and page tree come first; a page is followed by its content, and a template is
// its own.
template <class T>
struct Kind;
template <>
struct Kind<PDFPage> {
  static constexpr const char* kName = "PDFPage";
  static constexpr std::size_t kContent = 5;
  static std::shared_ptr<Canvas> AddTo(PDFDocument& document) { return document.Pages()->Add(); }
};
template <>
struct Kind<PDFTemplate> {
  static constexpr const char* kName = "PDFTemplate";
  static constexpr std::size_t kContent = 4;
  static std::shared_ptr<Canvas> AddTo(PDFDocument& document) {
    return document.Templates()->Add();
  }
};

struct ClassNames {
  template <class T>
  static std::string GetName(int) {
    return Kind<T>::kName;
  }
};

// The only page or template of a document.
template <class T>
class EveryCanvas : public testing::Test {
 protected:
  // As it stands in the saved file.
  std::string Stream() {
    return std::string(Save(*document_, "content.pdf", Check::kForm).pdf.Stream(Kind<T>::kContent));
  }

  // "PDFPage.DrawLine"
  static std::string Member(const std::string& name) { return Kind<T>::kName + ("." + name); }

  std::shared_ptr<PDFDocument> document_ = PDFDocument::Create();
  std::shared_ptr<Canvas> canvas_ = Kind<T>::AddTo(*document_);
};

using Canvases = testing::Types<PDFPage, PDFTemplate>;
TYPED_TEST_SUITE(EveryCanvas, Canvases, ClassNames);

TYPED_TEST(EveryCanvas, StartsEmptyInTheDefaultFontWithThePenAtTheOrigin) {
  const Canvas& canvas = *this->canvas_;
  EXPECT_EQ(canvas.Font()->FontFace(), "Helvetica");
  EXPECT_EQ(canvas.Font()->Size(), 10);
  EXPECT_EQ(canvas.GraphicsState()->LineWidth(), 1);
  EXPECT_EQ(canvas.GetCurPos().x, 0);
  EXPECT_EQ(canvas.GetCurPos().y, 0);
  EXPECT_EQ(this->Stream(), "q\nQ\n");
}

TYPED_TEST(EveryCanvas, GraphicsStateAndTextBoxesAreTheSameObjectsEachTime) {
  Canvas& canvas = *this->canvas_;
  const auto state = canvas.GraphicsState();
  const auto boxes = canvas.TextBoxes();
  ASSERT_NE(state, nullptr);
  ASSERT_NE(boxes, nullptr);
  this->Stream();
  EXPECT_EQ(canvas.GraphicsState(), state);
  EXPECT_EQ(canvas.TextBoxes(), boxes);
}

TYPED_TEST(EveryCanvas, EveryOperationWritesItsOperators) {
  Canvas& canvas = *this->canvas_;
  canvas.DrawText("one\ntwo", 1, 2);
  canvas.DrawTextAligned("A", 10, 20, 100, 50, htaRight, vtaTop);
  canvas.DrawLine(10, 20, 30, 40);
  canvas.DrawLineTo(50, 60);
  canvas.DrawRect(1, 2, 3, 4);
  canvas.DrawRect(1, 2, 3, 4, Paint::kStrokeAndFill);
  canvas.DrawRect(1, 2, 3, 4, Paint::kFill);
  canvas.DrawRect(1, 2, 3, 4, Paint::kStroke);
  canvas.DrawRect(1, 2, 3, 4, Paint::kNone);
  canvas.DrawLineTo(0, 0);
  EXPECT_EQ(this->Stream(),
            "q\nBT\n/F0 10  Tf\n1  2  Td\n11.56  TL\n(one) Tj\nT*\n(two) Tj\nET\n"
            "BT\n/F0 10  Tf\n10  62.82  Td\n93.33  0 Td\n(A) Tj\n-93.33  0 Td\nET\n"
            "10  20  m\n30  40  l\nS\n30  40  m\n50  60  l\nS\n"
            "1  2  m\n1  2  3  4  re\ns\n1  2  m\n1  2  3  4  re\nb\n"
            "1  2  m\n1  2  3  4  re\nf n\n1  2  m\n1  2  3  4  re\ns\n"
            "1  2  m\n1  2  3  4  re\nn\n"
            "4  6  m\n0  0  l\nS\nQ\n");
}

TYPED_TEST(EveryCanvas, DecorationsAreBracketedAndMoveThePen) {
  Canvas& canvas = *this->canvas_;
  const auto font = canvas.Font()->Clone();
  font->SetUnderline(true);
  canvas.SetFont(font);
  canvas.DrawText("A", 100, 200);
  canvas.DrawLineTo(0, 0);
  EXPECT_EQ(this->Stream(),
            "q\nBT\n/F0 10  Tf\n100  200  Td\n(A) Tj\nET\nq\n0.5  w\n100  199  m\n106.67  199  l\n"
            "S\nQ\n106.67  199  m\n0  0  l\nS\nQ\n");
}

// 400 by 100 pixels.
TYPED_TEST(EveryCanvas, AnImageFitsIntoItsMeasuresOrIsStretchedToThem) {
  Canvas& canvas = *this->canvas_;
  const auto image = this->document_->Images()->Add();
  image->SetFileName(WriteBlankBmp("wide.bmp", 400, 100).u8string());
  canvas.DrawImage(image, 72, 600);
  canvas.DrawImage(image, 72, 600, 200, 100);
  canvas.DrawImage(image, 72, 600, 200, 100, AspectRatio::kKeep);
  canvas.DrawImage(image, 72, 600, 200, 100, AspectRatio::kStretch);
  EXPECT_EQ(this->Stream(),
            "q\nq\n400 0 0 100 72 600  cm\n/I1 Do\nQ\n"
            "q\n200 0 0 50 72 600  cm\n/I1 Do\nQ\n"
            "q\n200 0 0 50 72 600  cm\n/I1 Do\nQ\n"
            "q\n200 0 0 100 72 600  cm\n/I1 Do\nQ\nQ\n");
}

TYPED_TEST(EveryCanvas, ThePenIsWhereItWasSetWhichAppendsNothing) {
  Canvas& canvas = *this->canvas_;
  canvas.SetCurPos(7.5F, -3);
  const auto [x, y] = canvas.GetCurPos();
  EXPECT_EQ(x, 7.5F);
  EXPECT_EQ(y, -3);
  EXPECT_EQ(this->Stream(), "q\nQ\n");
}

TYPED_TEST(EveryCanvas, TheFirstLineToStartsAtTheOrigin) {
  this->canvas_->DrawLineTo(5, 6);
  EXPECT_EQ(this->Stream(), "q\n0  0  m\n5  6  l\nS\nQ\n");
}

TYPED_TEST(EveryCanvas, NoFontRaises91AndKeepsTheOldOne) {
  const auto font = this->canvas_->Font();
  EXPECT_EQ(ErrorNumberOf([&] { this->canvas_->SetFont(nullptr); }), Error::kObjectNotSet);
  EXPECT_EQ(ErrorTextOf([&] { this->canvas_->SetFont(nullptr); }),
            this->Member("Font: no font is given"));
  EXPECT_EQ(this->canvas_->Font(), font);
}

TYPED_TEST(EveryCanvas, FontOfAnotherDocumentIsRefused) {
  const auto document = PDFDocument::Create();
  const auto other = document->Fonts()->Add("Courier");
  const auto font = this->canvas_->Font();
  EXPECT_EQ(ErrorNumberOf([&] { this->canvas_->SetFont(other); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorTextOf([&] { this->canvas_->SetFont(other); }),
            this->Member("Font: font 'Courier': belongs to another document"));
  EXPECT_EQ(this->canvas_->Font(), font);
}

TYPED_TEST(EveryCanvas, FontChangedLaterShowsInWhatIsDrawnLater) {
  Canvas& canvas = *this->canvas_;
  const auto font = canvas.Font()->Clone();
  canvas.SetFont(font);
  canvas.DrawText("a", 0, 0);
  font->SetSize(12.5F);
  canvas.DrawText("b", 0, 0);
  EXPECT_EQ(this->Stream(),
            "q\nBT\n/F0 10  Tf\n0  0  Td\n(a) Tj\nET\n"
            "BT\n/F0 12.5  Tf\n0  0  Td\n(b) Tj\nET\nQ\n");
}

TYPED_TEST(EveryCanvas, GraphicsStateIsNestedInItsOwnContent) {
  const auto state = this->canvas_->GraphicsState();
  state->SetLineWidth(3);
  state->Push();
  EXPECT_EQ(state->LineWidth(), 0);
  state->SetFillColor(0x0000FF);
  state->Translate(10, 20);
  state->Push();
  state->SetLineWidth(2);
  state->Pop();
  EXPECT_EQ(state->FillColor(), 0x0000FF);
  EXPECT_EQ(state->LineWidth(), 0);
  EXPECT_FALSE(state->Pop());
  EXPECT_EQ(state->LineWidth(), 3);
  EXPECT_EQ(ErrorNumberOf([&] { state->Pop(); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(this->Stream(), "q\n3  w\nq\n1 0 0 rg\n1 0 0 1 10 20  cm\nq\n2  w\nQ\nQ\nQ\n");
}

TYPED_TEST(EveryCanvas, TheGraphicsStateOfATextBoxIsItsOwn) {
  Canvas& canvas = *this->canvas_;
  canvas.TextBoxes()->Add()->GraphicsState()->SetFillColor(7);
  EXPECT_EQ(canvas.GraphicsState()->FillColor(), 0);
  canvas.TextBoxes()->Remove(1);
  EXPECT_EQ(this->Stream(), "q\nQ\n");
}

TYPED_TEST(EveryCanvas, ErrorsNameTheClassAndTheMember) {
  Canvas& canvas = *this->canvas_;
  const std::string inf = ": a value of inf cannot be written: PDF numbers are below 2^31";
  EXPECT_EQ(ErrorTextOf([&] { canvas.DrawText("A", kInfinity, 0); }),
            this->Member("DrawText" + inf));
  EXPECT_EQ(ErrorTextOf([&] { canvas.DrawLine(kInfinity, 0, 0, 0); }),
            this->Member("DrawLine" + inf));
  EXPECT_EQ(ErrorTextOf([&] { canvas.DrawLineTo(kInfinity, 0); }),
            this->Member("DrawLineTo" + inf));
  EXPECT_EQ(ErrorTextOf([&] { canvas.DrawTextAligned("A", 0, 0, kInfinity, 0); }),
            this->Member("DrawTextAligned: a sum of coordinates is beyond a single"));
  EXPECT_EQ(ErrorTextOf([&] { canvas.DrawRect(0, 0, 0, kInfinity); }),
            this->Member("DrawRect: a sum of coordinates is beyond a single"));
  EXPECT_EQ(ErrorTextOf([&] { canvas.DrawImage(nullptr, -500, 0); }),
            this->Member("DrawImage: no PDFImage is given"));
  EXPECT_EQ(this->Stream(), "q\nQ\n");
}

TYPED_TEST(EveryCanvas, LongContentIsWrittenWhole) {
  std::string expected = "q\n";
  for (int i = 0; i < 20000; ++i) {
    this->canvas_->DrawLine(100, 100, 200.5F, 200.25F);
    expected += "100  100  m\n200.5  200.25  l\nS\n";
  }
  EXPECT_TRUE(this->Stream() == expected + "Q\n");
}

}  // namespace
}  // namespace folivar::test
