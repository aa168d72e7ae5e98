#include <gtest/gtest.h>

#include <string>

#include "folivar/document/PDFResourceDictionary.h"
#include "folivar/folivar.h"
#include "tests/support/SavedDocument.h"

namespace folivar::test {
namespace {

std::string TextOf(const PDFResourceDictionary& resources) {
  PDFText text;
  resources.BuildResourceText(text);
  return std::string(text.Bytes());
}

TEST(PDFResourceDictionary, FontsEntryIsThereEvenWhenEmpty) {
  EXPECT_EQ(TextOf(PDFResourceDictionary()), "<< \n/Font << >>\n>>\n");
}

TEST(PDFResourceDictionary, FaceIsListedOnceInTheOrderOfFirstUse) {
  const auto document = PDFDocument::Create();
  const auto fonts = document->Fonts();
  const auto courier = fonts->Add("Courier");
  const auto small = fonts->Add("Helvetica");
  const auto large = small->Clone();
  large->SetSize(30);
  PDFResourceDictionary resources;
  resources.AddFontResource(*courier);
  resources.AddFontResource(*small);
  resources.AddFontResource(*large);
  resources.AddFontResource(*courier);
  Save(*document, "numbers.pdf", Check::kForm);  // gives the faces the numbers 4 and 5
  EXPECT_EQ(TextOf(resources), "<< \n/Font << /F1 5 0 R\n /F0 4 0 R\n >>\n>>\n");
}

}  // namespace
}  // namespace folivar::test
