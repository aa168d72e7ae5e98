#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "folivar/fonts/TrueTypeMetrics.h"
#include "tests/support/FakeFonts.h"

namespace folivar::test {
namespace {

// The face "Plain" of a system, as the test wants it.
class TrueTypeMetrics : public testing::Test {
 protected:
  std::unique_ptr<SystemFace> Selected() {
    return system_.SelectFace(Text(plain_.name), false, false);
  }

  std::shared_ptr<PDFFontInfo> Loaded(const FaceWanted& wanted = {Text("Plain")}) {
    return LoadTrueTypeMetrics(wanted, *Selected(), *port_);
  }

  FakeFonts system_;
  FakeFace& plain_ = system_.AddFamily("Plain");
  std::vector<std::string> warnings_;
  std::shared_ptr<Warnings> port_ =
      Warnings::To([this](const Text& message) { warnings_.push_back(message.Utf8()); });
};

TEST_F(TrueTypeMetrics, AreTheSystemsAnswers) {
  plain_.metrics = {905, 212, 31, 255};
  plain_.widths[u'A'] = 667;
  plain_.SetU16("OS/2", 26, 102);
  plain_.SetU16("head", 18, 2048);
  plain_.SetU16("head", 36, -1114);
  plain_.SetU16("head", 38, -621);
  plain_.SetU16("head", 40, 2666);
  plain_.SetU16("head", 42, 1854);
  plain_.SetU16("PCLT", 16, 1409);
  const auto record = Loaded();
  EXPECT_EQ(record->m_FontType, fontTrueType);
  EXPECT_EQ(record->m_FontFace, "Plain");
  EXPECT_EQ(record->m_PDFName, "") << "the collection gives it";
  EXPECT_EQ(record->m_CapHeight, 1409);
  EXPECT_EQ(record->m_Ascender, 905);
  EXPECT_EQ(record->m_Descender, -212);
  EXPECT_EQ(record->FirstCharacter(), 31);
  EXPECT_EQ(record->LastCharacter(), 255);
  EXPECT_EQ(record->MeasureWidth("A"), 667);
  // 1000 / 2048 of them, truncated toward zero: -543.9, -303.2, 1301.7, 905.2
  EXPECT_EQ(record->FontBoxLeft(), -543);
  EXPECT_EQ(record->FontBoxBottom(), -303);
  EXPECT_EQ(record->FontBoxRight(), 1301);
  EXPECT_EQ(record->FontBoxTop(), 905);
  EXPECT_EQ(record->m_ItalicAngle, 0);
  EXPECT_EQ(record->m_StrikeoutPosition, 905.0F / 3);
  EXPECT_EQ(record->m_StrikeoutSize, 102);
  EXPECT_EQ(record->m_UnderlinePosition, -106);
  EXPECT_EQ(record->m_UnderlineSize, 102);
  EXPECT_EQ(record->m_SubscriptPosition, -100);
  EXPECT_EQ(record->m_SubscriptSize, 650);
  EXPECT_EQ(record->m_SuperscriptPosition, 350);
  EXPECT_EQ(record->m_SuperscriptSize, 650);
  EXPECT_TRUE(record->m_Embeddable);
  EXPECT_FALSE(record->m_EmbedFont);
  EXPECT_EQ(record->Program(), nullptr);
  EXPECT_TRUE(warnings_.empty());
}

TEST_F(TrueTypeMetrics, HaveTheStyleWantedWhateverTheFaceHas) {
  const auto record = Loaded({Text("Plain"), true, true});
  EXPECT_TRUE(record->m_IsBold);
  EXPECT_TRUE(record->m_IsItalic);
  EXPECT_EQ(record->m_FontFace, "Plain");
  EXPECT_EQ(record->BaseFontName(), "Plain,BoldItalic");
}

// Deliberate: these two stay in the font's own units, whatever its em.
TEST_F(TrueTypeMetrics, DeliberateCapHeightAndLineSizesAreNotRescaled) {
  plain_.SetU16("head", 18, 2048);
  plain_.SetU16("PCLT", 16, 1409);
  plain_.SetU16("OS/2", 26, -102);
  const auto record = Loaded();
  EXPECT_EQ(record->m_CapHeight, 1409);
  EXPECT_EQ(record->m_StrikeoutSize, -102);
  EXPECT_EQ(record->m_UnderlineSize, -102);
}

// Deliberate: the two that end lines and pages, but not the carriage return.
TEST_F(TrueTypeMetrics, DeliberateLineFeedAndFormFeedHaveNoWidth) {
  const auto record = Loaded();
  EXPECT_EQ(record->MeasureWidth("\n"), 0);
  EXPECT_EQ(record->MeasureWidth("\f"), 0);
  EXPECT_EQ(record->MeasureWidth("\r"), 500);
  EXPECT_EQ(record->MeasureWidth("\v"), 500);
}

TEST_F(TrueTypeMetrics, TablesThatTheFontLacksReadAsZeros) {
  plain_.tables.clear();
  const auto record = Loaded({Text("Plain"), false, false, true});
  EXPECT_EQ(record->m_CapHeight, 0);
  EXPECT_EQ(record->m_StrikeoutSize, 0);
  EXPECT_EQ(record->FontBoxTop(), 0);
  EXPECT_FALSE(record->m_IsSymbolic);
  EXPECT_TRUE(record->m_Embeddable);
  EXPECT_TRUE(record->m_EmbedFont);
}

TEST_F(TrueTypeMetrics, TheClassOfSymbolsMakesAFaceSymbolic) {
  constexpr int kSymbolicClass = 12;
  EXPECT_FALSE(Loaded()->m_IsSymbolic);
  plain_.SetU16("OS/2", 30, kSymbolicClass << 8 | 3);
  EXPECT_TRUE(Loaded()->m_IsSymbolic);
}

TEST_F(TrueTypeMetrics, TheProgramIsTheSystems) {
  const auto record = Loaded({Text("Plain"), false, false, true});
  EXPECT_TRUE(record->m_EmbedFont);
  ASSERT_NE(record->Program(), nullptr);
  EXPECT_EQ(*record->Program(), "the font's program");
}

TEST_F(TrueTypeMetrics, AProgramThatCannotBeHadIsNotEmbedded) {
  plain_.program.clear();
  const auto record = Loaded({Text("Plain"), false, false, true});
  EXPECT_FALSE(record->m_EmbedFont);
  EXPECT_EQ(record->Program(), nullptr);
  EXPECT_TRUE(record->m_Embeddable);
  EXPECT_TRUE(warnings_.empty());
}

TEST_F(TrueTypeMetrics, OnlyTheLicenceOf2ForbidsEmbedding) {
  for (const int licence : {0, 1, 4, 6, 8, 10, 0x0102, 0x0200, 0xFFFF}) {
    plain_.SetU16("OS/2", 8, licence);
    EXPECT_TRUE(IsEmbeddable(*Selected())) << licence;
    EXPECT_TRUE(Loaded()->m_Embeddable) << licence;
  }
  plain_.SetU16("OS/2", 8, 2);
  EXPECT_FALSE(IsEmbeddable(*Selected()));
  EXPECT_FALSE(Loaded()->m_Embeddable);
}

TEST_F(TrueTypeMetrics, AFaceThatMayNotBeEmbeddedWarnsWhenItShouldBe) {
  plain_.SetU16("OS/2", 8, 2);
  Loaded();
  EXPECT_TRUE(warnings_.empty());
  const auto record = Loaded({Text("Plain"), false, false, true});
  EXPECT_FALSE(record->m_Embeddable);
  EXPECT_FALSE(record->m_EmbedFont);
  EXPECT_EQ(record->Program(), nullptr);
  EXPECT_EQ(warnings_, std::vector<std::string>{
                           "WARNING: Font Plain is not licensed for embedding.  The font will not "
                           "be embedded in the PDF file."});
}

TEST_F(TrueTypeMetrics, AFaceOfAnotherNameWarnsFirst) {
  plain_.SetU16("OS/2", 8, 2);
  EXPECT_EQ(Loaded({Text("Arial"), false, false, true})->m_FontFace, "Plain");
  ASSERT_EQ(warnings_.size(), 2U);
  EXPECT_EQ(warnings_[0], "WARNING: Font 'Arial' could not be found.  Using 'Plain' instead.");
  EXPECT_NE(warnings_[1].find("Font Plain is not licensed"), std::string::npos);
}

TEST_F(TrueTypeMetrics, ANameInOtherLettersDoesNotWarn) {
  EXPECT_EQ(Loaded({Text("pLAIN")})->m_FontFace, "Plain");
  EXPECT_TRUE(warnings_.empty());
}

TEST_F(TrueTypeMetrics, CodesAreBytes) {
  plain_.metrics = {900, 200, 254, 0xFFFF};
  EXPECT_EQ(Loaded()->FirstCharacter(), 254);
  EXPECT_EQ(Loaded()->LastCharacter(), 255);
}

}  // namespace
}  // namespace folivar::test
