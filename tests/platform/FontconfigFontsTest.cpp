// Run with FONTCONFIG_FILE set to tests/platform/fonts.conf: the system's fonts are those of the
// packages fonts-liberation and fonts-dejavu then, whatever else is installed.

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "folivar/folivar.h"
#include "tests/support/PackagedFonts.h"
#include "tests/support/TestFiles.h"
#include "tests/support/Tools.h"

namespace folivar::test {
namespace {

class FontconfigFonts : public testing::Test {
 protected:
  std::string FamilyFor(const char* name) {
    return system_->SelectFace(Text(name), false, false)->Name().Utf8();
  }

  std::string ProgramFor(const char* name, bool isBold, bool isItalic) {
    return *system_->SelectFace(Text(name), isBold, isItalic)->Program();
  }

  std::shared_ptr<SystemFonts> system_ = SystemFonts::OfThisSystem();
};

TEST_F(FontconfigFonts, FindsAFaceByItsFamilyInAnyCase) {
  EXPECT_EQ(FamilyFor("Liberation Serif"), "Liberation Serif");
  EXPECT_EQ(FamilyFor("dejavu SANS mono"), "DejaVu Sans Mono");
  // The family of four styles, which fontconfig knows as one of the names of "DejaVu Sans" too.
  EXPECT_EQ(FamilyFor("DejaVu Sans Condensed"), "DejaVu Sans Condensed");
}

TEST_F(FontconfigFonts, FindsEachStyleInItsFile) {
  const auto bytesOf = [](const char* name) { return ReadBytes(PackagedFont(name)); };
  EXPECT_EQ(ProgramFor("DejaVu Sans", false, false), bytesOf("dejavu/DejaVuSans.ttf"));
  EXPECT_EQ(ProgramFor("DejaVu Sans", true, false), bytesOf("dejavu/DejaVuSans-Bold.ttf"));
  EXPECT_EQ(ProgramFor("DejaVu Sans", false, true), bytesOf("dejavu/DejaVuSans-Oblique.ttf"));
  EXPECT_EQ(ProgramFor("DejaVu Sans", true, true), bytesOf("dejavu/DejaVuSans-BoldOblique.ttf"));
}

TEST_F(FontconfigFonts, PutsTheSystemsSubstituteInThePlaceOfAMissingFace) {
  // As fontconfig's own program says it.
  for (const char* name : {"Arial", "Nonesuch", "monospace"}) {
    EXPECT_EQ(FamilyFor(name), test::Run({"fc-match", "-f", "%{family[0]}", name}).out) << name;
  }
}

TEST_F(FontconfigFonts, ListsEveryFamily) {
  std::vector<std::string> names;
  for (const Text& name : system_->FaceNames()) names.push_back(name.Utf8());
  std::sort(names.begin(), names.end());
  names.erase(std::unique(names.begin(), names.end()), names.end());
  EXPECT_EQ(names,
            (std::vector<std::string>{
                "DejaVu Math TeX Gyre", "DejaVu Sans", "DejaVu Sans Condensed", "DejaVu Sans Light",
                "DejaVu Sans Mono", "DejaVu Serif", "DejaVu Serif Condensed", "Liberation Mono",
                "Liberation Sans", "Liberation Sans Narrow", "Liberation Serif"}));
}

TEST_F(FontconfigFonts, AreWhatADocumentUsesByDefault) {
  const auto document = PDFDocument::Create();
  EXPECT_EQ(document->Fonts()->AvailableFonts(fontTrueType).size(), 11U);
  EXPECT_EQ(document->Fonts()->Add("Liberation Mono", fontTrueType)->FontFace(), "Liberation Mono");
}

}  // namespace
}  // namespace folivar::test
