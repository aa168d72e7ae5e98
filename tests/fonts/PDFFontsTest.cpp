#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "folivar/base/Error.h"
#include "folivar/base/Internal.h"
#include "folivar/folivar.h"
#include "folivar/fonts/PDFFontInfo.h"
#include "folivar/fonts/PDFFonts.h"
#include "tests/support/AfmFile.h"
#include "tests/support/Content.h"
#include "tests/support/SavedDocument.h"

namespace folivar::test {
namespace {

const PDFFontInfo* RecordOf(const PDFFont& font) { return font.FontInfo(Internal()).get(); }

class PDFFontsOfADocument : public testing::Test {
 protected:
  PDFFontsOfADocument() {
    Platform platform;
    platform.warnings =
        Warnings::To([this](const Text& message) { warnings_.push_back(message.Utf8()); });
    document_ = PDFDocument::Create(platform);
    fonts_ = document_->Fonts();
  }

  // The resource name of the font's face.
  static std::string NameOf(const PDFFont& font) { return RecordOf(font)->m_PDFName; }

  // Adds an unknown face and returns the face used in its place, after checking the warning.
  std::string Substitute(const std::string& name) {
    warnings_.clear();
    const std::string substitute = fonts_->Add(name)->FontFace().Utf8();
    const std::vector<std::string> expected = {
        "WARNING: Font '" + name + "' could not be found.  Using '" + substitute + "' instead."};
    EXPECT_EQ(warnings_, expected);
    return substitute;
  }

  std::vector<std::string> warnings_;
  std::shared_ptr<PDFDocument> document_;
  std::shared_ptr<PDFFonts> fonts_;
};

TEST_F(PDFFontsOfADocument, ANewDocumentUsesHelveticaAsF0) {
  EXPECT_EQ(fonts_->count(fontType1), 1);
  EXPECT_EQ(fonts_->count(fontTrueType), 0);
  EXPECT_TRUE(fonts_->FontExists("Helvetica", fontType1));
  const auto font = fonts_->Item(1, fontType1);
  EXPECT_EQ(font->FontFace(), "Helvetica");
  EXPECT_EQ(NameOf(*font), "/F0");
  EXPECT_EQ(document_->Pages()->Add()->Font()->FontFace(), "Helvetica");
  EXPECT_TRUE(warnings_.empty());
}

TEST_F(PDFFontsOfADocument, AFaceAddedTwiceIsTwoFontsWithOneRecord) {
  const auto first = fonts_->Add("Courier");
  first->SetSize(33);
  first->SetUnderline(true);
  const auto second = fonts_->Add("Courier");
  EXPECT_NE(first, second);
  EXPECT_EQ(RecordOf(*first), RecordOf(*second));
  EXPECT_EQ(NameOf(*first), NameOf(*second));
  EXPECT_EQ(second->Size(), 10);
  EXPECT_FALSE(second->Underline());
  EXPECT_EQ(fonts_->count(fontType1), 2);
}

TEST_F(PDFFontsOfADocument, ResourceNamesCountFrom0InTheOrderOfCreation) {
  EXPECT_EQ(NameOf(*fonts_->Add("Times-Roman")), "/F1");
  EXPECT_EQ(NameOf(*fonts_->Add("Courier")), "/F2");
  EXPECT_EQ(NameOf(*fonts_->Add("Helvetica")), "/F0");
  EXPECT_EQ(NameOf(*fonts_->Add("Symbol")), "/F3");
  EXPECT_EQ(fonts_->count(fontType1), 4);
}

TEST_F(PDFFontsOfADocument, AStandardNameInOtherCaseIsThatFaceInItsOwnSpelling) {
  const auto font = fonts_->Add("TIMES-roman");
  EXPECT_EQ(font->FontFace(), "Times-Roman");
  EXPECT_EQ(RecordOf(*font), RecordOf(*fonts_->Add(u"Times-Roman")));
  EXPECT_EQ(RecordOf(*fonts_->Add("hELVETICA")), RecordOf(*fonts_->Item("Helvetica", fontType1)));
  EXPECT_TRUE(warnings_.empty());
}

TEST_F(PDFFontsOfADocument, EveryStandardFaceCanBeAdded) {
  for (const std::string_view face : kStandardFaces) {
    EXPECT_EQ(fonts_->Add(face)->FontFace(), face);
  }
  EXPECT_EQ(fonts_->count(fontType1), 14);
  EXPECT_TRUE(warnings_.empty());
}

TEST_F(PDFFontsOfADocument, AnUnknownNameBecomesHelveticaWithAWarning) {
  for (const char* name : {"Nonesuch", "Helvetica-Narrow", "Times", "Times New", "", "Courier New",
                           "caf\u00E9", "Helvetica "}) {
    EXPECT_EQ(Substitute(name), "Helvetica") << name;
  }
}

TEST_F(PDFFontsOfADocument, TheWarningHasTwoBlanksBehindItsFirstStop) {
  fonts_->Add("Nonesuch");
  EXPECT_EQ(warnings_, std::vector<std::string>{"WARNING: Font 'Nonesuch' could not be found.  "
                                                "Using 'Helvetica' instead."});
}

TEST_F(PDFFontsOfADocument, ArialIsHelveticaAndTimesNewRomanIsTimes) {
  EXPECT_EQ(Substitute("Arial"), "Helvetica");
  EXPECT_EQ(Substitute("Arial-Bold"), "Helvetica-Bold");
  EXPECT_EQ(Substitute("Arial-BoldOblique"), "Helvetica-BoldOblique");
  EXPECT_EQ(Substitute("Arial-BOLDoblique"), "Helvetica-BoldOblique");
  EXPECT_EQ(Substitute("Times New Roman-Bold"), "Times-Bold");
  EXPECT_EQ(Substitute("Times New Roman-Roman"), "Times-Roman");
  EXPECT_EQ(Substitute("Times New Roman"), "Helvetica") << "no standard face is just Times";
  EXPECT_EQ(Substitute("Arial-Narrow"), "Helvetica");
}

// Deliberate: the beginning is found in any case, but replaced only in the spelling of the table.
TEST_F(PDFFontsOfADocument, DeliberateAFamilyInOtherCaseIsNotReplaced) {
  EXPECT_EQ(Substitute("ARIAL-Bold"), "Helvetica");
  EXPECT_EQ(Substitute("arial-bold"), "Helvetica");
  EXPECT_EQ(Substitute("TIMES NEW ROMAN-Bold"), "Helvetica");
}

TEST_F(PDFFontsOfADocument, ASubstituteThatIsInUseTakesNoNameAndMakesNoRecord) {
  const auto helvetica = fonts_->Item(1, fontType1);
  EXPECT_EQ(RecordOf(*fonts_->Add("Nonesuch")), RecordOf(*helvetica));
  EXPECT_EQ(fonts_->count(fontType1), 1);
  EXPECT_FALSE(fonts_->FontExists("Nonesuch", fontType1));
  EXPECT_EQ(NameOf(*fonts_->Add("Courier")), "/F1");
}

TEST_F(PDFFontsOfADocument, ASubstituteThatIsNotInUseIsMadeUnderItsOwnName) {
  const auto font = fonts_->Add("Arial-Bold");
  EXPECT_EQ(NameOf(*font), "/F1");
  EXPECT_TRUE(fonts_->FontExists("Helvetica-Bold", fontType1));
  EXPECT_FALSE(fonts_->FontExists("Arial-Bold", fontType1));
  EXPECT_EQ(RecordOf(*fonts_->Add("Helvetica-Bold")), RecordOf(*font));
}

TEST_F(PDFFontsOfADocument, EveryAddOfAnUnknownNameWarns) {
  fonts_->Add("Nonesuch");
  fonts_->Add("Nonesuch");
  EXPECT_EQ(warnings_.size(), 2U);
}

TEST_F(PDFFontsOfADocument, WhatAWarningThrowsReachesTheCallerAndNothingIsAdded) {
  Platform platform;
  platform.warnings = Warnings::To([](const Text&) { throw std::logic_error("no"); });
  const auto document = PDFDocument::Create(platform);
  EXPECT_THROW(document->Fonts()->Add("Arial-Bold"), std::logic_error);
  EXPECT_EQ(document->Fonts()->count(fontType1), 1);
  EXPECT_EQ(NameOf(*document->Fonts()->Add("Courier")), "/F1");
}

TEST_F(PDFFontsOfADocument, ANameThatIsNotUtf8Raises5AndAddsNothing) {
  EXPECT_EQ(ErrorNumberOf([&] { fonts_->Add("Helvetica\xFF"); }), Error::kInvalidArgument);
  EXPECT_EQ(fonts_->count(fontType1), 1);
  EXPECT_TRUE(warnings_.empty());
}

TEST_F(PDFFontsOfADocument, ItemGivesANewFontOfSize10) {
  const auto courier = fonts_->Add("Courier");
  courier->SetSize(33);
  for (const Value& index : {Value(2), Value("Courier"), Value("cOURIER"), Value(1.5)}) {
    const auto font = fonts_->Item(index, fontType1);
    EXPECT_NE(font, courier);
    EXPECT_EQ(RecordOf(*font), RecordOf(*courier));
    EXPECT_EQ(font->Size(), 10);
  }
}

TEST_F(PDFFontsOfADocument, ItemRaisesTheErrorsOfCollections) {
  const auto errorOf = [&](const Value& index, PDFFontType type) {
    return ErrorNumberOf([&] { fonts_->Item(index, type); });
  };
  EXPECT_EQ(errorOf("Courier", fontType1), Error::kInvalidArgument);
  EXPECT_EQ(errorOf("1", fontType1), Error::kInvalidArgument);
  EXPECT_EQ(errorOf(0, fontType1), Error::kSubscriptOutOfRange);
  EXPECT_EQ(errorOf(2, fontType1), Error::kSubscriptOutOfRange);
  EXPECT_EQ(errorOf(1, fontTrueType), Error::kSubscriptOutOfRange);
  EXPECT_EQ(errorOf("Helvetica", fontTrueType), Error::kInvalidArgument);
  EXPECT_EQ(errorOf(true, fontType1), Error::kTypeMismatch);
  EXPECT_EQ(errorOf(Value(), fontType1), Error::kTypeMismatch);
  EXPECT_EQ(errorOf(Value::Null(), fontType1), Error::kInvalidNull);
  EXPECT_EQ(errorOf(3e9, fontType1), Error::kOverflow);
}

TEST_F(PDFFontsOfADocument, FontExistsTellsFacesInUseByNameAndType) {
  EXPECT_TRUE(fonts_->FontExists("HELVETICA", fontType1));
  EXPECT_FALSE(fonts_->FontExists("Helvetica", fontTrueType));
  EXPECT_FALSE(fonts_->FontExists("Courier", fontType1)) << "available, but not in use";
  EXPECT_FALSE(fonts_->FontExists("", fontType1));
  fonts_->Add("Courier");
  EXPECT_TRUE(fonts_->FontExists("Courier", fontType1));
}

TEST_F(PDFFontsOfADocument, AvailableFontsAreTheFourteenInTheirOrder) {
  const std::vector<Text> names = fonts_->AvailableFonts(fontType1);
  ASSERT_EQ(names.size(), kStandardFaces.size());
  for (std::size_t i = 0; i < names.size(); ++i) EXPECT_EQ(names[i], kStandardFaces[i]);
}

TEST_F(PDFFontsOfADocument, EveryFaceIsWrittenOnceInTheOrderOfCreation) {
  fonts_->Add("times-ROMAN");
  fonts_->Add("Arial-Bold");
  fonts_->Add("Times-Roman");
  const SavedDocument saved = Save(*document_, "fonts.pdf");
  ASSERT_EQ(saved.pdf.Count(), 6U);  // catalog, outline, page tree and three fonts
  const std::vector<std::string> faces = {"Helvetica", "Times-Roman", "Helvetica-Bold"};
  for (std::size_t i = 0; i < faces.size(); ++i) {
    EXPECT_EQ(saved.pdf.Object(4 + i), "<< /Type /Font\n/Subtype /Type1\n/Name /F" +
                                           std::to_string(i) + "\n/BaseFont /" + faces[i] +
                                           "\n>>\n");
  }
}

TEST_F(PDFFontsOfADocument, WorkAfterTheDocumentIsGone) {
  document_.reset();
  EXPECT_EQ(fonts_->Add("Courier")->FontFace(), "Courier");
  EXPECT_EQ(fonts_->count(fontType1), 2);
}

}  // namespace
}  // namespace folivar::test
