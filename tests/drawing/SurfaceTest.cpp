#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <string_view>

#include "folivar/base/Error.h"
#include "folivar/drawing/Surface.h"
#include "folivar/file/XObject.h"
#include "folivar/folivar.h"
#include "tests/support/Content.h"
#include "tests/support/MemorySink.h"
#include "tests/support/SavedDocument.h"

namespace folivar::test {
namespace {

// What is drawn on, and the document it is of.
class SurfaceOfADocument : public testing::Test {
 protected:
  SurfaceOfADocument() { surface_.SetFont(document_->Fonts()->Add("Courier")); }

  std::string Stream(std::string_view textBoxes = {}) const {
    MemorySink sink;
    surface_.WriteStream(sink, textBoxes);
    EXPECT_EQ(surface_.StreamLength(textBoxes), sink.Bytes().size());
    return sink.Bytes();
  }

  std::string Resources() {
    Save(*document_, "numbers.pdf", Check::kForm);  // gives the faces numbers from 4
    PDFText text;
    surface_.ResourceDictionary().BuildResourceText(text);
    return std::string(text.Bytes());
  }

  std::shared_ptr<PDFDocument> document_ = PDFDocument::Create();
  Surface surface_{document_};
};

TEST(Surface, StartsWithoutAFontAndWithThePenAtTheOrigin) {
  const Surface surface({});
  EXPECT_EQ(surface.Font(), nullptr);
  EXPECT_EQ(surface.CurPos().x, 0);
  EXPECT_EQ(surface.CurPos().y, 0);
}

TEST_F(SurfaceOfADocument, KnowsItsDocumentWithoutKeepingIt) {
  EXPECT_EQ(surface_.ParentDocument().lock(), document_);
  document_.reset();
  EXPECT_TRUE(surface_.ParentDocument().expired());
}

TEST_F(SurfaceOfADocument, TheContentStandsBetweenQAndQAndTheTextBoxesBehindIt) {
  EXPECT_EQ(Stream(), "q\nQ\n");
  surface_.AppendContent("1 0 0 rg\n");
  surface_.AppendContent(Real{10.5}, " w\n");
  EXPECT_EQ(Stream(), "q\n1 0 0 rg\n10.5  w\nQ\n");
  EXPECT_EQ(Stream("% boxes\n"), "q\n1 0 0 rg\n10.5  w\nQ\n% boxes\n");
}

TEST_F(SurfaceOfADocument, APieceIsAppendedWhollyOrNotAtAll) {
  surface_.AppendContent("before\n");
  EXPECT_EQ(ErrorNumberOf([&] {
              surface_.AppendContent("begun ", Real{std::numeric_limits<double>::infinity()});
            }),
            Error::kOverflow);
  EXPECT_EQ(Stream(), "q\nbefore\nQ\n");
}

TEST_F(SurfaceOfADocument, AFontMadeCurrentIsListedOnce) {
  const auto fonts = document_->Fonts();
  const auto font = fonts->Add("Times-Roman");
  surface_.SetFont(font);
  EXPECT_EQ(surface_.Font(), font);
  surface_.SetFont(fonts->Add("courier"));
  // The document's default font, Helvetica, has number 4.
  EXPECT_EQ(Resources(), "<< \n/Font << /F1 5 0 R\n /F2 6 0 R\n >>\n>>\n");
}

TEST_F(SurfaceOfADocument, AFontThatIsNoneOrOfAnotherDocumentIsRefused) {
  const auto font = surface_.Font();
  const auto document = PDFDocument::Create();
  const auto other = document->Fonts()->Add("Times-Roman");
  EXPECT_EQ(ErrorNumberOf([&] { surface_.SetFont(nullptr); }), Error::kObjectNotSet);
  EXPECT_EQ(ErrorNumberOf([&] { surface_.SetFont(other); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorTextOf([&] { surface_.SetFont(other); }),
            "font 'Times-Roman': belongs to another document");
  EXPECT_EQ(ErrorNumberOf([&] { surface_.CheckIsOfDocument(*other); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorNumberOf([&] { surface_.CheckIsOfDocument(*font->Clone()); }), 0);
  EXPECT_EQ(surface_.Font(), font);
  EXPECT_EQ(Resources(), "<< \n/Font << /F1 5 0 R\n >>\n>>\n");
}

TEST_F(SurfaceOfADocument, AnObjectThatIsNoneOrOfAnotherDocumentIsRefusedByItsKind) {
  const auto other = PDFDocument::Create();
  const auto image = other->Images()->Add();
  const auto drawn = other->Templates()->Add("logo");
  const auto number = [&](const XObject* object) {
    return ErrorNumberOf([&] { surface_.CheckIsOfDocument(object, "PDFImage"); });
  };
  const auto text = [&](const XObject* object, const char* kind) {
    return ErrorTextOf([&] { surface_.CheckIsOfDocument(object, kind); });
  };
  EXPECT_EQ(number(document_->Images()->Add().get()), 0);
  EXPECT_EQ(number(nullptr), Error::kObjectNotSet);
  EXPECT_EQ(number(image.get()), Error::kInvalidArgument);
  EXPECT_EQ(text(nullptr, "PDFImage"), "no PDFImage is given");
  EXPECT_EQ(text(image.get(), "PDFImage"), "PDFImage /I1: belongs to another document");
  EXPECT_EQ(text(drawn.get(), "PDFTemplate"), "PDFTemplate 'logo': belongs to another document");
}

TEST_F(SurfaceOfADocument, SurfacesOfTheSameDocumentAreKnownAlsoWhenItIsGone) {
  const Surface same(document_);
  auto another = PDFDocument::Create();
  const Surface other(another);
  EXPECT_TRUE(surface_.IsOfSameDocument(same));
  EXPECT_FALSE(surface_.IsOfSameDocument(other));
  document_.reset();
  another.reset();
  EXPECT_TRUE(surface_.IsOfSameDocument(same));
  EXPECT_FALSE(surface_.IsOfSameDocument(other));
}

TEST_F(SurfaceOfADocument, ThePenIsWhereItWasSetWhichAppendsNothing) {
  surface_.SetCurPos({7.5F, -3});
  EXPECT_EQ(surface_.CurPos().x, 7.5F);
  EXPECT_EQ(surface_.CurPos().y, -3);
  EXPECT_EQ(Stream(), "q\nQ\n");
}

}  // namespace
}  // namespace folivar::test
