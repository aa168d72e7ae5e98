// Run with LD_LIBRARY_PATH set to the folder fake_fontconfig of the build: the library that
// FakeFontconfig.cpp makes stands in the place of fontconfig's then.

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <new>
#include <stdexcept>

#include "folivar/folivar.h"
#include "tests/platform/FakeFontconfig.h"
#include "tests/support/FontBuilder.h"
#include "tests/support/TestFiles.h"

namespace folivar::test {
namespace {

FakeFontconfig& Fake() {
  void* const library = dlopen("libfontconfig.so.1", RTLD_NOW | RTLD_LOCAL);
  void* const function = library ? dlsym(library, kFakeFontconfig) : nullptr;
  if (!function) throw std::runtime_error("the fontconfig of the test is not there");
  return reinterpret_cast<FakeFontconfigFunction>(function)();
}

class FontconfigMemory : public testing::Test {
 protected:
  FontconfigMemory() {
    const auto file = OutputPath("font.ttf");
    WriteBytes(file, FontBuilder().Build());
    fake_.fonts = {{file.string(), "Test Sans"}};
    fake_.answersLeft = -1;
    fake_.nullsSeen = 0;
  }

  // Asks with no memory, and then a little more, until there is enough.
  void ExpectBadAllocUntilThereIsEnough(int answersNeeded, const std::function<void()>& ask) {
    for (int answers = 0; answers < answersNeeded; ++answers) {
      SCOPED_TRACE(answers);
      fake_.answersLeft = answers;
      EXPECT_THROW(ask(), std::bad_alloc);
      EXPECT_EQ(fake_.objectsLeft, 0);
    }
    fake_.answersLeft = answersNeeded;
    EXPECT_NO_THROW(ask());
    EXPECT_EQ(fake_.answersLeft, 0);
    EXPECT_EQ(fake_.objectsLeft, 0);
    EXPECT_EQ(fake_.nullsSeen, 0);
  }

  FakeFontconfig& fake_ = Fake();
};

// To refresh, the configuration, a pattern, its family, the properties wanted, the fonts.
TEST_F(FontconfigMemory, ThatRunsOutWhileAFamilyIsLookedForIsBadAlloc) {
  ExpectBadAllocUntilThereIsEnough(6, [] {
    const auto face = SystemFonts::OfThisSystem()->SelectFace(Text("Test Sans"), false, false);
    EXPECT_NE(face, nullptr);
  });
}

// As above in vain; for the substitutes a pattern, its family, weight and slant, the rules, the
// fonts; then the substitute's family: a pattern, its family, the properties, the fonts.
TEST_F(FontconfigMemory, ThatRunsOutWhileASubstituteIsLookedForIsBadAlloc) {
  ExpectBadAllocUntilThereIsEnough(6 + 6 + 4, [] {
    const auto face = SystemFonts::OfThisSystem()->SelectFace(Text("Nonesuch"), true, false);
    EXPECT_NE(face, nullptr);
  });
}

// To refresh, the configuration, a pattern, the properties wanted, the fonts.
TEST_F(FontconfigMemory, ThatRunsOutWhileAllFamiliesAreListedIsBadAlloc) {
  ExpectBadAllocUntilThereIsEnough(
      5, [] { EXPECT_EQ(SystemFonts::OfThisSystem()->FaceNames().size(), 1U); });
}

TEST_F(FontconfigMemory, ThatRunsOutIsNoMissingFontForADocument) {
  const auto document = PDFDocument::Create();
  fake_.answersLeft = 3;
  EXPECT_THROW(document->Fonts()->Add("Test Sans", fontTrueType), std::bad_alloc);
  fake_.answersLeft = -1;
  EXPECT_EQ(document->Fonts()->Add("Test Sans", fontTrueType)->FontFace(), "Test Sans");
}

// After a list of all families, a question for one of them needs no further list.
TEST_F(FontconfigMemory, AListOfAllFamiliesAnswersForEach) {
  const auto system = SystemFonts::OfThisSystem();
  system->FaceNames();
  fake_.answersLeft = 2;  // to refresh, the configuration
  EXPECT_EQ(system->SelectFace(Text("test sans"), false, false)->Name(), "Test Sans");
  EXPECT_EQ(fake_.answersLeft, 0);
}

}  // namespace
}  // namespace folivar::test
