#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "folivar/base/Error.h"
#include "folivar/folivar.h"
#include "folivar/images/PDFImages.h"
#include "tests/support/BmpFile.h"
#include "tests/support/Content.h"
#include "tests/support/SavedDocument.h"

namespace folivar::test {
namespace {

std::string KeysOf(PDFImages& images) {
  std::string keys;
  for (const auto& image : images) keys += image->Key().IsEmpty() ? "-" : image->Key().Utf8();
  return keys;
}

TEST(PDFImages, IsTheSameObjectEachTime) {
  const auto document = PDFDocument::Create();
  EXPECT_EQ(document->Images(), document->Images());
  EXPECT_EQ(document->Images()->count(), 0);
}

TEST(PDFImages, AddsAtPlacesByPositionAndByKey) {
  const auto document = PDFDocument::Create();
  const auto images = document->Images();
  const auto plain = images->Add();
  EXPECT_EQ(images->Item(1), plain);
  EXPECT_FALSE(images->KeyExists(""));
  images->Add("b");
  images->Add("a", "B");
  images->Add("c", {}, 3);
  images->Add("first", 1);
  EXPECT_EQ(KeysOf(*images), "first-abc");
  EXPECT_EQ(images->count(), 5);
  EXPECT_EQ(images->Item("C")->Key(), "c");
  EXPECT_TRUE(images->KeyExists("A"));
  EXPECT_TRUE(images->KeyExists(5));
  EXPECT_FALSE(images->KeyExists(6));
}

TEST(PDFImages, RefusesAsEveryCollection) {
  const auto document = PDFDocument::Create();
  const auto images = document->Images();
  images->Add("a");
  EXPECT_EQ(ErrorNumberOf([&] { images->Add("A"); }), Error::kKeyInUse);
  EXPECT_EQ(ErrorTextOf([&] { images->Add("A"); }), "PDFImages.Add: key 'A' is already in use");
  EXPECT_EQ(ErrorNumberOf([&] { images->Add("b", 1, 1); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorNumberOf([&] { images->Add("b", "x"); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorNumberOf([&] { images->Add("b", {}, 2); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] { images->Item("b"); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorNumberOf([&] { images->Item(0); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(images->count(), 1);
}

// The name counts the images there are, wherever the new one is put and whatever its key is; an
// image that was refused does not count.
TEST(PDFImages, ResourceNamesCountFromOne) {
  const auto document = PDFDocument::Create();
  const auto images = document->Images();
  const auto file = WriteBlankBmp("blank.bmp", 1, 1).u8string();
  images->Add("first")->SetFileName(file);
  EXPECT_EQ(ErrorNumberOf([&] { images->Add("first"); }), Error::kKeyInUse);
  images->Add("", 1)->SetFileName(file);
  images->Add()->SetFileName(file);
  const SavedDocument saved = Save(*document, "names.pdf");
  const auto hasName = [&](std::size_t number, const char* name) {
    return saved.pdf.Object(number).find("\n/Name " + std::string(name) + "\n") !=
           std::string_view::npos;
  };
  EXPECT_TRUE(hasName(4, "/I2"));
  EXPECT_TRUE(hasName(5, "/I1"));
  EXPECT_TRUE(hasName(6, "/I3"));
}

TEST(PDFImages, ImagesStandBetweenPagesAndFonts) {
  const auto document = PDFDocument::Create();
  document->Images()->Add()->SetFileName(WriteBlankBmp("blank.bmp", 1, 1).u8string());
  document->Pages()->Add();
  const SavedDocument saved = Save(*document, "order.pdf");
  ASSERT_EQ(saved.pdf.Count(), 7U);
  EXPECT_TRUE(saved.pdf.Object(4).starts_with("<< /Type /Page\n"));
  EXPECT_TRUE(saved.pdf.Object(6).starts_with("<< /Type /XObject\n/Subtype /Image\n"));
  EXPECT_TRUE(saved.pdf.Object(7).starts_with("<< /Type /Font\n"));
}

TEST(PDFImages, PictureAddedTwiceIsWrittenTwice) {
  const auto document = PDFDocument::Create();
  const auto file = WriteBlankBmp("blank.bmp", 9, 1).u8string();
  document->Images()->Add()->SetFileName(file);
  document->Images()->Add()->SetFileName(file);
  const SavedDocument saved = Save(*document, "twice.pdf");
  EXPECT_EQ(saved.pdf.Stream(4), saved.pdf.Stream(5));
  EXPECT_EQ(saved.pdf.Count(), 6U);
}

TEST(PDFImages, DocumentIsSavedTheSameAgain) {
  const auto document = PDFDocument::Create();
  const auto image = document->Images()->Add();
  image->SetFileName(WriteBlankBmp("blank.bmp", 20, 30).u8string());
  document->Pages()->Add()->DrawImage(image, 10, 10);
  EXPECT_EQ(Save(*document, "first.pdf").bytes, Save(*document, "second.pdf").bytes);
}

}  // namespace
}  // namespace folivar::test
