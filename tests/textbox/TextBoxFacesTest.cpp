// Bold and italic in text boxes: for TrueType fonts, faces of their own.

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "folivar/folivar.h"
#include "tests/support/FakeFonts.h"
#include "tests/support/PackagedFonts.h"
#include "tests/support/SavedDocument.h"
#include "tests/support/Tools.h"

namespace folivar::test {
namespace {

using Strings = std::vector<std::string>;

void Select(PDFTextBox& box, std::int32_t start, std::int32_t length) {
  box.SetSelStart(start);
  box.SetSelLength(length);
}

// A box in a family whose every style is as wide as its name says.
class StyledTextBox : public testing::Test {
 protected:
  StyledTextBox() {
    fonts_->AddFamily("Sans").widths.fill(500);
    for (const auto& [style, width] :
         {std::pair("Bold", 600), std::pair("Italic", 400), std::pair("BoldItalic", 700)}) {
      FakeFace face = fonts_->faces.at("Sans");
      face.widths.fill(width);
      fonts_->faces["Sans," + std::string(style)] = face;
    }
    page_->SetFont(document_->Fonts()->Add("Sans", fontTrueType));
    box_ = page_->TextBoxes()->Add();
    box_->Move(0, 700, 500, 100);
    box_->SetText("0123456789");
  }

  float WidthOfSelection() const { return box_->SelFont()->TextWidth(box_->SelText()); }

  std::string Content() {
    return std::string(Save(*document_, "styled.pdf", Check::kForm).pdf.Stream(5));
  }

  std::shared_ptr<FakeFonts> fonts_ = std::make_shared<FakeFonts>();
  std::shared_ptr<PDFDocument> document_ = PDFDocument::Create({.systemFonts = fonts_});
  std::shared_ptr<PDFPage> page_ = document_->Pages()->Add();
  std::shared_ptr<PDFTextBox> box_;
};

TEST_F(StyledTextBox, StylesChangeTheFaceOfTheSelectionAlone) {
  Select(*box_, 2, 4);
  box_->SetSelBold(true);
  EXPECT_FLOAT_EQ(WidthOfSelection(), 24);
  EXPECT_EQ(box_->SelBold(), true);
  EXPECT_EQ(box_->SelItalic(), false);
  box_->SetSelItalic(true);
  EXPECT_FLOAT_EQ(WidthOfSelection(), 28);
  EXPECT_EQ(box_->SelItalic(), true);
  Select(*box_, 0, 2);
  EXPECT_FLOAT_EQ(WidthOfSelection(), 10);
  EXPECT_EQ(box_->SelBold(), false);
  Select(*box_, 6, 4);
  EXPECT_FLOAT_EQ(WidthOfSelection(), 20);
  Select(*box_, 0, 10);
  EXPECT_EQ(box_->SelBold(), std::nullopt);
  EXPECT_FLOAT_EQ(page_->Font()->TextWidth("0123456789"), 50) << "the page's own is another font";
}

TEST_F(StyledTextBox, AStyleTakenBackLeavesOneRun) {
  Select(*box_, 2, 4);
  box_->SetSelBold(true);
  box_->SetSelBold(false);
  Select(*box_, 0, 10);
  EXPECT_EQ(box_->SelBold(), false);
  EXPECT_FLOAT_EQ(WidthOfSelection(), 50);
}

TEST_F(StyledTextBox, RunsInOneStyleShareItsFace) {
  Select(*box_, 0, 2);
  box_->SetSelBold(true);
  Select(*box_, 5, 2);
  box_->SetSelBold(true);
  EXPECT_EQ(fonts_->requests, (Strings{"Sans", "Sans,Bold"}));
  Select(*box_, 2, 3);
  box_->SetSelBold(true);
  Select(*box_, 0, 7);
  EXPECT_EQ(box_->SelBold(), true) << "one run again";
}

TEST_F(StyledTextBox, TheStyleOfASharedFontChangesForAllThatShareIt) {
  const auto font = page_->Font()->Clone();
  font->SetSize(12);
  Select(*box_, 0, 2);
  box_->SetSelFont(font);
  Select(*box_, 5, 2);
  box_->SetSelFont(font);
  box_->SetSelBold(true);
  EXPECT_TRUE(font->Bold());
  Select(*box_, 0, 2);
  EXPECT_EQ(box_->SelBold(), true);
  Select(*box_, 2, 3);
  EXPECT_EQ(box_->SelBold(), false);
}

TEST_F(StyledTextBox, LinesBreakByTheWidthsOfTheirFaces) {
  box_->SetText("aaa bbb ccc");
  box_->SetWidth(44.5F);  // 40 for "aaa bbb " in the light face, which reaches the edge
  box_->SetMargins(2, 2, 2, 2);
  Select(*box_, 0, 7);
  box_->SetSelItalic(true);  // 28 and 5
  EXPECT_NE(Content().find("(aaa bbb) Tj"), std::string::npos) << Content();
  box_->SetSelBold(true);  // 49 and 5
  EXPECT_EQ(Content().find("(aaa bbb) Tj"), std::string::npos) << Content();
}

// "name type encoding embedded" of each font of the first page, in the order of its resources.
Strings FontsOf(const std::filesystem::path& pdf) {
  std::istringstream table(test::Run({"pdffonts", pdf}).out);
  Strings fonts;
  int number = 0;
  for (std::string line; std::getline(table, line);) {
    std::istringstream row(line);
    std::string name;
    std::string type;
    std::string encoding;
    std::string isEmbedded;
    row >> name >> type >> encoding >> isEmbedded;
    if (++number > 2) fonts.push_back(name + " " + type + " " + encoding + " " + isEmbedded);
  }
  return fonts;
}

TEST(TextBoxFaces, EveryFaceUsedIsListedInOrderAndEmbedded) {
  const auto document = PDFDocument::Create();
  for (const char* style : {"Regular", "Bold", "Italic", "BoldItalic"}) {
    document->FontFiles()->AddFile(
        PackagedFont("liberation/LiberationSans-" + std::string(style) + ".ttf").u8string());
  }
  const auto page = document->Pages()->Add();
  page->SetFont(document->Fonts()->Add("Liberation Sans", fontTrueType, Embedding::kEmbed));
  const auto box = page->TextBoxes()->Add();
  box->Move(72, 700, 300, 100);
  box->SetText("upright both bold light");
  Select(*box, 13, 4);
  box->SetSelBold(true);
  Select(*box, 8, 4);
  box->SetSelItalic(true);
  box->SetSelBold(true);
  const SavedDocument saved = Save(*document, "faces.pdf");
  // The italic face was passed on the way to both and is used by nothing, so the page does not list
  // it; the page itself began with Helvetica.
  EXPECT_NE(saved.pdf.Object(4).find("/Font << /F0 6 0 R\n /F1 7 0 R\n /F4 16 0 R\n /F2 10 0 R\n"),
            std::string::npos)
      << saved.pdf.Object(4);
  EXPECT_EQ(FontsOf(saved.path),
            (Strings{"Helvetica Type 1 Standard", "LiberationSans TrueType WinAnsi yes",
                     "LiberationSans,BoldItalic TrueType WinAnsi yes",
                     "LiberationSans,Bold TrueType WinAnsi yes"}));
  EXPECT_EQ(TextOf(saved.path), "upright both bold light\n\f");
}

}  // namespace
}  // namespace folivar::test
