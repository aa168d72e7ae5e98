#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "folivar/base/Error.h"
#include "folivar/base/Internal.h"
#include "folivar/folivar.h"
#include "folivar/fonts/FontMetrics.h"
#include "folivar/fonts/PDFFontInfo.h"
#include "tests/support/Content.h"
#include "tests/support/FakeFonts.h"
#include "tests/support/SavedDocument.h"

namespace folivar::test {
namespace {

const PDFFontInfo& RecordOf(const PDFFont& font) { return *font.FontInfo(Internal()); }

// A document on a system with the families "Test Sans" (four styles) and "Plain" (one).
class TrueTypeFaces : public testing::Test {
 protected:
  TrueTypeFaces() {
    system_->AddFamily("Plain");
    for (const char* style : {"", ",Bold", ",Italic", ",BoldItalic"}) {
      FakeFace& face = system_->faces[std::string("Test Sans") + style];
      face.name = "Test Sans";
      face.program = std::string("program of Test Sans") + style;
    }
    system_->substitute = "Plain";
    Platform platform;
    platform.systemFonts = system_;
    platform.warnings =
        Warnings::To([this](const Text& message) { warnings_.push_back(message.Utf8()); });
    document_ = PDFDocument::Create(platform);
    fonts_ = document_->Fonts();
  }

  FakeFace& Plain() { return system_->faces["Plain"]; }

  std::shared_ptr<PDFFont> Add(TextView name, Embedding embedding = Embedding::kNone) {
    return fonts_->Add(name, fontTrueType, embedding);
  }

  // The record of the family "Plain", once it is as the test wants it.
  const PDFFontInfo& PlainRecord(Embedding embedding = Embedding::kNone) {
    return RecordOf(*Add("Plain", embedding));
  }

  std::shared_ptr<FakeFonts> system_ = std::make_shared<FakeFonts>();
  std::vector<std::string> warnings_;
  std::shared_ptr<PDFDocument> document_;
  std::shared_ptr<PDFFonts> fonts_;
};

TEST_F(TrueTypeFaces, ATextHasNoHeightButTheFaceHas) {
  Plain().SetU16("head", 38, -250);
  Plain().SetU16("head", 42, 1000);
  const auto font = Add("Plain");
  EXPECT_EQ(font->TextHeight("Ag"), 0);
  EXPECT_EQ(font->TextHeight(), 12.5F);
  EXPECT_EQ(font->TextWidth("Ag"), 10);
}

TEST_F(TrueTypeFaces, AFaceThatMayNotBeEmbeddedWarnsOnceAndIsWrittenWithoutItsProgram) {
  Plain().SetU16("OS/2", 8, 2);
  const PDFFontInfo& record = PlainRecord(Embedding::kEmbed);
  EXPECT_FALSE(record.m_Embeddable);
  EXPECT_FALSE(record.m_EmbedFont);
  EXPECT_EQ(warnings_, std::vector<std::string>{
                           "WARNING: Font Plain is not licensed for embedding.  The font will not "
                           "be embedded in the PDF file."});
  Add("Plain", Embedding::kEmbed);
  EXPECT_EQ(warnings_.size(), 1U) << "the second time it is there already";
  EXPECT_EQ(Save(*document_, "restricted.pdf").pdf.Count(), 6U);
}

TEST_F(TrueTypeFaces, AMissingFaceIsReplacedByTheSystemsWithAWarning) {
  const auto font = Add("Arial");
  EXPECT_EQ(font->FontFace(), "Plain");
  EXPECT_EQ(warnings_, std::vector<std::string>{"WARNING: Font 'Arial' could not be found.  Using "
                                                "'Plain' instead."});
  EXPECT_TRUE(fonts_->FontExists("Plain", fontTrueType));
  EXPECT_FALSE(fonts_->FontExists("Arial", fontTrueType));
}

TEST_F(TrueTypeFaces, TheFamiliesOfStandardFacesDoNotMatterForTrueType) {
  system_->AddFamily("Arial");
  EXPECT_EQ(Add("Helvetica")->FontFace(), "Plain");
}

TEST_F(TrueTypeFaces, ASubstituteThatIsInUseMakesNoSecondRecord) {
  const PDFFontInfo& record = PlainRecord();
  EXPECT_EQ(&RecordOf(*Add("Arial")), &record);
  EXPECT_EQ(fonts_->count(fontTrueType), 1);
  EXPECT_EQ(RecordOf(*Add("Test Sans")).m_PDFName, "/F2");
}

TEST_F(TrueTypeFaces, LetterCaseDoesNotWarn) {
  EXPECT_EQ(Add("pLAIN")->FontFace(), "Plain");
  EXPECT_TRUE(warnings_.empty());
}

TEST_F(TrueTypeFaces, AnEmptyNameAsksTheSystemEachTime) {
  EXPECT_EQ(Add("")->FontFace(), "Plain");
  EXPECT_EQ(Add("")->FontFace(), "Plain");
  EXPECT_EQ(system_->requests.size(), 2U);
  EXPECT_EQ(fonts_->count(fontTrueType), 1);
}

TEST_F(TrueTypeFaces, NamesAreFoundWithoutRegardToBlanks) {
  EXPECT_FALSE(fonts_->FontExists("Test Sans", fontTrueType));
  const auto font = Add("Test Sans");
  EXPECT_EQ(font->FontFace(), "Test Sans");
  EXPECT_EQ(RecordOf(*font).BaseFontName(), "TestSans");
  for (const char* name : {"Test Sans", "TestSans", "TEST SANS", " T e s t Sans "}) {
    EXPECT_TRUE(fonts_->FontExists(name, fontTrueType)) << name;
    EXPECT_EQ(&RecordOf(*Add(name)), &RecordOf(*font)) << name;
    EXPECT_EQ(&RecordOf(*fonts_->Item(name, fontTrueType)), &RecordOf(*font)) << name;
  }
  EXPECT_EQ(system_->requests.size(), 1U);
  EXPECT_FALSE(fonts_->FontExists("Test Sans", fontType1));
  EXPECT_EQ(ErrorNumberOf([&] { fonts_->FontExists("\xFF", fontTrueType); }),
            Error::kInvalidArgument);
}

// Deliberate: the face keeps what it was added with.
TEST_F(TrueTypeFaces, DeliberateAddingAgainWithEmbedDoesNotEmbed) {
  Add("Plain");
  EXPECT_FALSE(RecordOf(*Add("Plain", Embedding::kEmbed)).m_EmbedFont);
}

TEST_F(TrueTypeFaces, ResourceNamesCountBothTypesTogether) {
  EXPECT_EQ(RecordOf(*Add("Plain")).m_PDFName, "/F1");
  EXPECT_EQ(RecordOf(*fonts_->Add("Courier")).m_PDFName, "/F2");
  EXPECT_EQ(RecordOf(*Add("Test Sans")).m_PDFName, "/F3");
  EXPECT_EQ(fonts_->count(fontTrueType), 2);
  EXPECT_EQ(fonts_->count(fontType1), 2);
}

TEST_F(TrueTypeFaces, BoldAndItalicChangeToTheStyledFace) {
  const auto font = Add("Test Sans", Embedding::kEmbed);
  const PDFFontInfo& upright = RecordOf(*font);
  font->SetSize(17);
  font->SetUnderline(true);
  const auto other = font->Clone();

  font->SetBold(true);
  EXPECT_TRUE(font->Bold());
  EXPECT_FALSE(font->Italic());
  EXPECT_EQ(RecordOf(*font).BaseFontName(), "TestSans,Bold");
  EXPECT_EQ(RecordOf(*font).m_PDFName, "/F2");
  EXPECT_TRUE(RecordOf(*font).m_EmbedFont) << "embedded like the face it was made from";
  EXPECT_EQ(font->Size(), 17);
  EXPECT_TRUE(font->Underline());
  EXPECT_EQ(&RecordOf(*other), &upright) << "other fonts keep their face";

  font->SetItalic(true);
  EXPECT_EQ(RecordOf(*font).BaseFontName(), "TestSans,BoldItalic");
  other->SetItalic(true);
  EXPECT_EQ(RecordOf(*other).BaseFontName(), "TestSans,Italic");
  EXPECT_EQ(system_->requests,
            (std::vector<std::string>{"Test Sans", "Test Sans,Bold", "Test Sans,BoldItalic",
                                      "Test Sans,Italic"}));
  EXPECT_EQ(fonts_->count(fontTrueType), 4);
  EXPECT_TRUE(fonts_->FontExists("Test Sans,Bold", fontTrueType));
  EXPECT_TRUE(warnings_.empty());
}

TEST_F(TrueTypeFaces, AStyleThatIsThereIsNotMadeAgain) {
  const auto first = Add("Test Sans");
  const auto second = first->Clone();
  first->SetBold(true);
  second->SetBold(true);
  second->SetBold(true);
  EXPECT_EQ(&RecordOf(*first), &RecordOf(*second));
  EXPECT_EQ(fonts_->count(fontTrueType), 2);
}

TEST_F(TrueTypeFaces, AStyleIsTakenBackOnlyToAFaceThatIsThere) {
  const auto font = Add("Test Sans");
  const PDFFontInfo& upright = RecordOf(*font);
  font->SetBold(true);
  font->SetItalic(true);
  font->SetBold(false);  // there is no record for italic alone
  EXPECT_TRUE(font->Bold());
  EXPECT_TRUE(font->Italic());
  EXPECT_EQ(fonts_->count(fontTrueType), 3);
  font->SetItalic(false);  // bold is there
  EXPECT_FALSE(font->Italic());
  EXPECT_TRUE(font->Bold());
  font->SetBold(false);
  EXPECT_EQ(&RecordOf(*font), &upright);
}

TEST_F(TrueTypeFaces, AFamilyWithoutTheStyleGetsARecordOfItsOwn) {
  const auto font = Add("Plain");
  font->SetItalic(true);
  EXPECT_TRUE(font->Italic());
  EXPECT_EQ(font->FontFace(), "Plain");
  EXPECT_EQ(RecordOf(*font).BaseFontName(), "Plain,Italic");
  EXPECT_TRUE(warnings_.empty());
}

TEST_F(TrueTypeFaces, AStyleOfAFaceThatMayNotBeEmbeddedIsNotTriedAgain) {
  Plain().SetU16("OS/2", 8, 2);
  const auto font = Add("Plain", Embedding::kEmbed);
  font->SetBold(true);
  EXPECT_EQ(warnings_.size(), 1U);
  EXPECT_FALSE(RecordOf(*font).m_EmbedFont);
}

TEST_F(TrueTypeFaces, ChangingTheStyleWithoutTheDocumentRaises91) {
  const auto font = Add("Plain");
  fonts_.reset();
  document_.reset();
  EXPECT_EQ(ErrorNumberOf([&] { font->SetBold(true); }), Error::kObjectNotSet);
  EXPECT_EQ(ErrorTextOf([&] { font->SetItalic(false); }),
            "PDFFont.Italic: the font's document is gone");
  EXPECT_EQ(font->TextWidth("ab"), 10);
}

TEST_F(TrueTypeFaces, ASystemWithoutFontsRaises445AndNamesTheFace) {
  system_->substitute.clear();
  EXPECT_EQ(ErrorNumberOf([&] { Add("Arial"); }), Error::kActionNotSupported);
  EXPECT_EQ(ErrorTextOf([&] { Add("Arial"); }),
            "PDFFonts.Add: font 'Arial': there is no TrueType font, neither among the document's "
            "font files nor installed where libfontconfig.so.1 finds it: install one, or add its "
            "file to FontFiles");
  EXPECT_EQ(fonts_->count(fontTrueType), 0);
  EXPECT_EQ(RecordOf(*fonts_->Add("Courier")).m_PDFName, "/F1");
}

TEST_F(TrueTypeFaces, WhatAWarningThrowsLeavesFontAndDocumentAsTheyWere) {
  const auto document = PDFDocument::Create(
      {Warnings::To([](const Text&) { throw std::logic_error("no"); }), system_});
  const auto fonts = document->Fonts();
  EXPECT_THROW(fonts->Add("Arial", fontTrueType), std::logic_error);
  EXPECT_EQ(fonts->count(fontTrueType), 0);
  const auto font = fonts->Add("Plain", fontTrueType, Embedding::kEmbed);
  system_->faces["Plain,Bold"] = Plain();
  system_->faces["Plain,Bold"].SetU16("OS/2", 8, 2);
  EXPECT_THROW(font->SetBold(true), std::logic_error);
  EXPECT_FALSE(font->Bold());
  EXPECT_EQ(fonts->count(fontTrueType), 1);
}

TEST_F(TrueTypeFaces, AvailableFontsAreSortedAndEachComesOnce) {
  system_->AddFamily("arial");
  system_->AddFamily("Zapf").SetU16("OS/2", 8, 2);
  system_->AddFamily("Beta").SetU16("OS/2", 8, 8);
  // The upright face decides.
  system_->faces["Beta,Bold"] = system_->faces["Zapf"];
  system_->faces["Beta,Bold"].name = "Beta";
  const auto names = [&](Embedding embedding) {
    std::vector<std::string> utf8;
    for (const Text& name : fonts_->AvailableFonts(fontTrueType, embedding)) {
      utf8.push_back(name.Utf8());
    }
    return utf8;
  };
  EXPECT_EQ(names(Embedding::kNone),
            (std::vector<std::string>{"arial", "Beta", "Plain", "Test Sans", "Zapf"}));
  EXPECT_EQ(names(Embedding::kEmbed),
            (std::vector<std::string>{"arial", "Beta", "Plain", "Test Sans"}));
  EXPECT_TRUE(warnings_.empty());
  EXPECT_EQ(fonts_->count(fontTrueType), 0);
}

TEST_F(TrueTypeFaces, FaceDescriptorAndProgramAreWrittenAsSpecified) {
  FakeFace& face = system_->faces["Test Sans,Bold"];
  face.metrics = {905, 212, 32, 35};
  face.widths[32] = 278;
  face.widths[33] = 0;
  face.widths[35] = 1015;
  face.SetU16("head", 36, -203);
  face.SetU16("head", 38, -303);
  face.SetU16("head", 40, 1050);
  face.SetU16("head", 42, 910);
  face.SetU16("PCLT", 16, 1409);
  const auto font = Add("Test Sans", Embedding::kEmbed);
  font->SetBold(true);
  const SavedDocument saved = Save(*document_, "faces.txt", Check::kForm);
  // Catalog, outline, page tree, Helvetica, then three objects for each face.
  ASSERT_EQ(saved.pdf.Count(), 10U);
  EXPECT_EQ(saved.pdf.Object(8),
            "<< /Type /Font\n/Subtype /TrueType\n/Name /F2\n/BaseFont /TestSans,Bold\n"
            "/FirstChar 32\n/LastChar 35\n/Widths [ 278 0 500 1015  ]\n/FontDescriptor 9 0 R\n"
            "/Encoding /WinAnsiEncoding\n>>\n");
  EXPECT_EQ(saved.pdf.Object(9),
            "<<\n/Type /FontDescriptor\n/FontName /TestSans,Bold\n"
            "/FontBBox [ -203 -303 1050 910  ]\n/Ascent 905 \n/Descent -212 \n/CapHeight 1409 \n"
            "/ItalicAngle 0 \n/Flags 32\n/StemV 70\n/FontFile2 10 0 R\n>>\n");
  EXPECT_EQ(saved.pdf.Object(10),
            "<<\n/Length 25\n/Length1 25\n>>\nstream\nprogram of Test Sans,Bold\nendstream\n");
}

TEST_F(TrueTypeFaces, AFaceWithoutItsProgramIsTwoObjects) {
  const auto font = Add("Test Sans");
  font->SetItalic(true);
  const SavedDocument saved = Save(*document_, "faces.pdf");
  ASSERT_EQ(saved.pdf.Count(), 8U);
  EXPECT_EQ(saved.pdf.Object(8),
            "<<\n/Type /FontDescriptor\n/FontName /TestSans,Italic\n"
            "/FontBBox [ 0 0 0 0  ]\n/Ascent 900 \n/Descent -200 \n/CapHeight 0 \n"
            "/ItalicAngle 0 \n/Flags 96\n/StemV 70\n>>\n");
}

TEST_F(TrueTypeFaces, ASymbolicFaceHasNoEncodingAndItsOwnFlags) {
  constexpr int kSymbolicClass = 12;
  Plain().SetU16("OS/2", 30, kSymbolicClass << 8 | 3);
  const auto font = Add("Plain");
  font->SetItalic(true);
  const SavedDocument saved = Save(*document_, "symbolic.pdf");
  EXPECT_EQ(saved.pdf.Object(5),
            "<< /Type /Font\n/Subtype /TrueType\n/Name /F1\n/BaseFont /Plain\n/FirstChar 32\n"
            "/LastChar 34\n/Widths [ 500 500 500  ]\n/FontDescriptor 6 0 R\n>>\n");
  EXPECT_NE(saved.pdf.Object(6).find("\n/Flags 4\n"), std::string::npos);
  EXPECT_NE(saved.pdf.Object(8).find("\n/Flags 68\n"), std::string::npos);
}

TEST_F(TrueTypeFaces, AFaceThatAWarningAddsMeanwhileTakesAnotherName) {
  std::shared_ptr<PDFFonts> fonts;
  bool isFirst = true;
  const auto document = PDFDocument::Create({Warnings::To([&](const Text&) {
                                               if (isFirst) fonts->Add("Courier");
                                               isFirst = false;
                                             }),
                                             system_});
  fonts = document->Fonts();
  EXPECT_EQ(RecordOf(*fonts->Add("Arial", fontTrueType)).m_PDFName, "/F2");
  EXPECT_EQ(RecordOf(*fonts->Add("Courier")).m_PDFName, "/F1");
}

TEST_F(TrueTypeFaces, ThePageListsTheFaceThatItsFontChangedTo) {
  const auto page = document_->Pages()->Add();
  page->SetFont(Add("Test Sans"));
  page->DrawText("upright", 10, 40);
  page->Font()->SetBold(true);
  page->DrawText("bold", 10, 20);
  page->Font()->SetItalic(true);
  page->DrawTextAligned("bold italic", 10, 60, 100, 20);
  // Faces, with their descriptors, are objects 7 to 12; 6 is Helvetica.
  const SavedDocument saved = Save(*document_, "styles.pdf");
  const std::string fonts = "/F0 6 0 R\n /F1 7 0 R\n /F2 9 0 R\n /F3 11 0 R\n";
  EXPECT_NE(saved.pdf.Object(4).find(fonts), std::string::npos) << saved.pdf.Object(4);
}

TEST_F(TrueTypeFaces, StylesOfAFaceAreDifferentFormats) {
  const auto font = Add("Test Sans");
  const auto other = font->Clone();
  EXPECT_TRUE(IsSameFormat(*font, *other));
  other->SetBold(true);
  EXPECT_FALSE(IsSameFormat(*font, *other));
  other->SetBold(false);
  EXPECT_TRUE(IsSameFormat(*font, *other));
}

TEST_F(TrueTypeFaces, AnAwkwardNameStaysOneName) {
  system_->AddFamily("CG Times (W1)");
  Add("CG Times (W1)");
  const SavedDocument saved = Save(*document_, "name.pdf");
  EXPECT_NE(saved.pdf.Object(5).find("/BaseFont /CGTimes#28W1#29\n"), std::string::npos);
  EXPECT_NE(saved.pdf.Object(6).find("/FontName /CGTimes#28W1#29\n"), std::string::npos);
}

TEST_F(TrueTypeFaces, AProgramThatCannotBeHadIsNotWritten) {
  Plain().program.clear();
  Add("Plain", Embedding::kEmbed);
  EXPECT_EQ(Save(*document_, "none.pdf").pdf.Count(), 6U);
}

}  // namespace
}  // namespace folivar::test
