// Run with FONTCONFIG_FILE set to tests/platform/fonts.conf: the system's fonts are those of the
// packages fonts-liberation and fonts-dejavu then, whatever else is installed.

#include <fontconfig/fontconfig.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "folivar/folivar.h"
#include "tests/support/FontBuilder.h"
#include "tests/support/PackagedFonts.h"
#include "tests/support/TestFiles.h"
#include "tests/support/Tools.h"

namespace folivar::test {
namespace {

using std::filesystem::path;

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

// A system whose fonts are the test's own, with rules of its own for fontconfig.
class FontsOfTheTest : public testing::Test {
 protected:
  ~FontsOfTheTest() override { Configure(before_); }

  static FontBuilder Named(const std::vector<FontName>& names) {
    FontBuilder font;
    font.tables["name"] = NameTable(names);
    return font;
  }

  static FontBuilder Named(const char16_t* family) {
    return Named(std::vector<FontName>{{.bytes = BigEndian(family)}});
  }

  void Install(const std::string& fileName, const FontBuilder& font) const {
    WriteBytes(folder_ / fileName, font.Build());
  }

  // From here on fontconfig sees what was installed.
  void Start(const std::string& rules = "") const {
    const path file = OutputPath("fonts.conf");
    WriteBytes(file, "<fontconfig><dir>" + folder_.string() + "</dir><cachedir>" +
                         OutputPath("cache").string() + "</cachedir>" + rules + "</fontconfig>");
    Configure(file.string());
  }

  std::unique_ptr<SystemFace> Select(TextView name, bool isBold = false) const {
    return system_->SelectFace(Text(name), isBold, false);
  }

  std::vector<std::string> Listed() const {
    std::vector<std::string> names;
    for (const Text& name : system_->FaceNames()) names.push_back(name.Utf8());
    return names;
  }

  const path folder_ = NewFolder();
  const std::shared_ptr<SystemFonts> system_ = SystemFonts::OfThisSystem();

 private:
  static path NewFolder() {
    path folder = OutputPath("installed");
    create_directories(folder);
    return folder;
  }

  static void Configure(const std::string& file) {
    setenv("FONTCONFIG_FILE", file.c_str(), 1);
    FcInitReinitialize();
  }

  const std::string before_ = getenv("FONTCONFIG_FILE");
};

using Names = std::vector<std::string>;

TEST_F(FontsOfTheTest, AFamilyThatARuleRenamesIsFoundAndListed) {
  Install("a.ttf", Named(u"Test Sans"));
  Start(R"(<match target="scan"><test name="family"><string>Test Sans</string></test>)"
        R"(<edit name="family" mode="assign"><string>House Sans</string></edit></match>)");
  EXPECT_EQ(Listed(), Names{"House Sans"});
  ASSERT_NE(Select("House Sans"), nullptr);
  EXPECT_EQ(Select("House Sans")->Name(), "House Sans");
  ASSERT_NE(Select("Nonesuch"), nullptr) << "there is a font, whatever its name";
  EXPECT_EQ(Select("Nonesuch")->Name(), "House Sans");
}

TEST_F(FontsOfTheTest, AFontWithNoNameButMacintoshsIsFound) {
  const FontName macintosh = {.platform = 1, .encoding = 0, .language = 0, .bytes = "Caf\x8E"};
  Install("a.ttf", Named({macintosh}));
  Start();
  EXPECT_EQ(Listed(), Names{"Caf\xC3\xA9"});
  ASSERT_NE(Select(u"caf\u00C9"), nullptr);
  EXPECT_EQ(Select(u"caf\u00C9")->Name(), u"Caf\u00E9");
  EXPECT_NE(Select("Nonesuch"), nullptr);
}

TEST_F(FontsOfTheTest, AFontWithANameInAnOldJapaneseCodeIsFoundByItsOther) {
  const FontName macintosh = {.platform = 1, .encoding = 0, .language = 0, .bytes = "Mincho"};
  const FontName japanese = {
      .platform = 3, .encoding = 2, .language = 0x0411, .bytes = "\x96\xBE\x92\xA9"};
  Install("a.ttf", Named({macintosh, japanese}));
  Start();
  EXPECT_EQ(Listed(), Names{"Mincho"});
  ASSERT_NE(Select("Nonesuch"), nullptr);
  EXPECT_EQ(Select("Nonesuch")->Name(), "Mincho");
}

TEST_F(FontsOfTheTest, AFontIsFoundByAnotherNameThatItHas) {
  const FontName family = {.bytes = BigEndian(u"Test Sans Black")};
  const FontName widerFamily = {.name = 16, .bytes = BigEndian(u"Test Sans")};
  Install("a.ttf", Named(u"Aardvark"));
  Install("b.ttf", Named({family, widerFamily}));
  Start();
  EXPECT_EQ(Listed(), (Names{"Aardvark", "Test Sans Black"}));
  ASSERT_NE(Select("Test Sans"), nullptr);
  EXPECT_EQ(Select("Test Sans")->Name(), "Test Sans Black");
}

TEST_F(FontsOfTheTest, OfSeveralWeightsTheNearestIsTaken) {
  FontBuilder font;
  for (const auto& [fileName, weight] :
       std::map<std::string, std::uint32_t>{{"a.ttf", 900}, {"b.ttf", 400}, {"c.ttf", 100}}) {
    SetU16(font.tables["OS/2"], 4, weight);
    SetU16(font.tables["hmtx"], 4, weight);  // of "A"
    Install(fileName, font);
  }
  Start();
  for (const char* name : {"Test Sans", "Nonesuch"}) {
    ASSERT_NE(Select(name), nullptr);
    EXPECT_EQ(Select(name)->Widths()['A'], 400);
    EXPECT_EQ(Select(name, true)->Widths()['A'], 901) << "thickened: it does not call itself bold";
  }
}

TEST_F(FontsOfTheTest, ASubstituteThatCannotBeReadGivesWayToTheNext) {
  Install("a.ttf", Named(u"Aardvark"));
  Install("b.ttf", Named(u"Test Sans"));
  Start(R"(<match><edit name="family" mode="append"><string>Aardvark</string></edit></match>)");
  ASSERT_EQ(Select("Nonesuch")->Name(), "Aardvark");
  WriteBytes(folder_ / "a.ttf", "no font");
  ASSERT_NE(Select("Nonesuch"), nullptr);
  EXPECT_EQ(Select("Nonesuch")->Name(), "Test Sans");
  EXPECT_EQ(Select("Aardvark")->Name(), "Test Sans");
}

// Fontconfig counts in seconds: what is installed in the second in which it looked last is not new
// to it.
TEST_F(FontsOfTheTest, AFontThatIsInstalledLaterIsFoundInTheEnd) {
  Install("a.ttf", Named(u"Aardvark"));
  Start("<config><rescan><int>1</int></rescan></config>");
  ASSERT_EQ(Listed(), Names{"Aardvark"});
  std::this_thread::sleep_for(std::chrono::milliseconds(1100));
  Install("b.ttf", Named(u"Test Sans"));
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
  while (Select("Test Sans")->Name() != "Test Sans" &&
         std::chrono::steady_clock::now() < deadline) {
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
  }
  EXPECT_EQ(Select("Test Sans")->Name(), "Test Sans");
  EXPECT_EQ(Listed(), (Names{"Aardvark", "Test Sans"}));
}

}  // namespace
}  // namespace folivar::test
