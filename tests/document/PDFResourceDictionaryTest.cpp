#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "folivar/document/PDFResourceDictionary.h"
#include "folivar/file/ObjectNumbers.h"
#include "folivar/file/XObject.h"
#include "folivar/folivar.h"
#include "tests/support/SavedDocument.h"

namespace folivar::test {
namespace {

std::string TextOf(const PDFResourceDictionary& resources) {
  PDFText text;
  resources.BuildResourceText(text);
  return std::string(text.Bytes());
}

// A template or an image, as the dictionary sees it.
class NumberedObject final : public XObject {
 public:
  NumberedObject(std::string resourceName, std::int32_t number)
      : XObject({}, "", std::move(resourceName)) {
    SetNumber(number);
  }

  void SetNumber(std::int32_t number) {
    ObjectNumbers numbers(number);
    TakeNumber(numbers);
  }
};

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

TEST(PDFResourceDictionary, XObjectEntryListsTemplatesBeforeImagesInTheOrderOfFirstUse) {
  PDFResourceDictionary resources;
  resources.AddImageResource(std::make_shared<NumberedObject>("/I2", 12));
  resources.AddTemplateResource(std::make_shared<NumberedObject>("/T3", 9));
  resources.AddImageResource(std::make_shared<NumberedObject>("/I1", 11));
  resources.AddTemplateResource(std::make_shared<NumberedObject>("/T1", 7));
  EXPECT_EQ(TextOf(resources),
            "<< \n/Font << >>\n/XObject << /T3 9 0 R\n /T1 7 0 R\n /I2 12 0 R\n /I1 11 0 R\n"
            " >>\n>>\n");
}

TEST(PDFResourceDictionary, XObjectEntryIsThereForTemplatesAloneAndForImagesAlone) {
  PDFResourceDictionary templates;
  templates.AddTemplateResource(std::make_shared<NumberedObject>("/T1", 7));
  EXPECT_EQ(TextOf(templates), "<< \n/Font << >>\n/XObject << /T1 7 0 R\n >>\n>>\n");

  PDFResourceDictionary images;
  images.AddImageResource(std::make_shared<NumberedObject>("/I1", 9));
  EXPECT_EQ(TextOf(images), "<< \n/Font << >>\n/XObject << /I1 9 0 R\n >>\n>>\n");
}

TEST(PDFResourceDictionary, XObjectUsedAgainIsListedOnce) {
  const auto letterhead = std::make_shared<NumberedObject>("/T1", 7);
  const auto logo = std::make_shared<NumberedObject>("/I1", 8);
  PDFResourceDictionary resources;
  for (int i = 0; i < 3; ++i) {
    resources.AddTemplateResource(letterhead);
    resources.AddImageResource(logo);
  }
  EXPECT_EQ(TextOf(resources), "<< \n/Font << >>\n/XObject << /T1 7 0 R\n /I1 8 0 R\n >>\n>>\n");
}

TEST(PDFResourceDictionary, NumbersAreThoseOfTheSaveInProgress) {
  const auto letterhead = std::make_shared<NumberedObject>("/T1", 7);
  PDFResourceDictionary resources;
  resources.AddTemplateResource(letterhead);
  letterhead->SetNumber(2147483646);
  EXPECT_EQ(TextOf(resources), "<< \n/Font << >>\n/XObject << /T1 2147483646 0 R\n >>\n>>\n");
}

}  // namespace
}  // namespace folivar::test
