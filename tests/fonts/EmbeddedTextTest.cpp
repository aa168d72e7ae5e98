// What other people's programs make of text in an embedded face.

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <filesystem>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "folivar/folivar.h"
#include "tests/support/PackagedFonts.h"
#include "tests/support/Picture.h"
#include "tests/support/SavedDocument.h"
#include "tests/support/Tools.h"

namespace folivar::test {
namespace {

using Strings = std::vector<std::string>;

const std::string kPangram = "The quick brown fox jumps over the lazy dog 0123456789";
const std::string kQuoted =
    "\u201CZw\u00F6lf Boxk\u00E4mpfer\u201D \u2013 voil\u00E0, cr\u00E8me br\u00FBl\u00E9e & "
    "jalape\u00F1o";
const std::string kQuotesAndEuro =
    "\u2018a\u2019 \u201Ab\u2018 \u201Ec\u201C \u2039d\u203A \u00ABe\u00BB \u2014 \u20AC9.95 "
    "\u2026";
const std::string kSigns =
    "\u00A1\u00A2\u00A3\u00A4\u00A5\u00A6\u00A7\u00A9\u00AA\u00AC\u00AE\u00B0\u00B1\u00B5\u00B6"
    "\u00B7\u00BA\u00BC\u00BD\u00BE\u00BF\u00D7\u00F7\u0192\u2020\u2021\u2022\u2030\u2122";
const std::string kCapitals =
    "\u00C0\u00C1\u00C2\u00C3\u00C4\u00C5\u00C6\u00C7\u00C8\u00C9\u00CA\u00CB\u00CC\u00CD\u00CE"
    "\u00CF\u00D0\u00D1\u00D2\u00D3\u00D4\u00D5\u00D6\u00D8\u00D9\u00DA\u00DB\u00DC\u00DD\u00DE"
    "\u0152\u0160\u0178\u017D";
const std::string kSmallLetters =
    "\u00DF\u00E0\u00E1\u00E2\u00E3\u00E4\u00E5\u00E6\u00E7\u00E8\u00E9\u00EA\u00EB\u00EC\u00ED"
    "\u00EE\u00EF\u00F0\u00F1\u00F2\u00F3\u00F4\u00F5\u00F6\u00F8\u00F9\u00FA\u00FB\u00FC\u00FD"
    "\u00FE\u00FF\u0153\u0161\u017E";

const Strings kLines = {kPangram, kQuoted, kQuotesAndEuro, kSigns, kCapitals, kSmallLetters};

struct Style {
  const char* name;
  const char* pdfName;
  bool isBold;
  bool isItalic;

  friend std::ostream& operator<<(std::ostream& out, const Style& style) {
    return out << style.name;
  }
};

constexpr auto kStyles = std::to_array<Style>({
    {"Regular", "LiberationSans", false, false},
    {"Bold", "LiberationSans,Bold", true, false},
    {"Italic", "LiberationSans,Italic", false, true},
    {"BoldItalic", "LiberationSans,BoldItalic", true, true},
});

// Pixels are points, their values 0 to 255. Measured: programs differ by at most 53 over the same
// text; one wrong accent or quotation mark, or half a point, gives 116 and more.
constexpr int kTolerance = 84;

// By the points of the page, each the mean of 144 dots, so that it hardly matters how a program
// smooths edges and rounds places. Ghostscript 10 hints some glyphs of the bold and the italic
// faces badly (the italic florin is a blot, whatever library wrote the file), so it judges the
// regular face alone.
std::vector<Picture> PicturesOf(const std::filesystem::path& pdf, const Style& style) {
  constexpr int kDotsPerPoint = 12;
  auto pictures = test::PicturesOf(pdf, 72 * kDotsPerPoint);
  if (style.isBold || style.isItalic) pictures.pop_back();
  for (Picture& picture : pictures) picture.pixels = Reduced(picture.pixels, kDotsPerPoint);
  return pictures;
}

// One page in Liberation Sans; `indent` moves the second line to the right.
std::filesystem::path WriteLines(const Strings& lines, const Style& style, const std::string& name,
                                 Embedding embedding = Embedding::kEmbed, float indent = 0) {
  const auto document = PDFDocument::Create();
  for (const Style& each : kStyles) {
    const std::string file = std::string("liberation/LiberationSans-") + each.name + ".ttf";
    document->FontFiles()->AddFile(PackagedFont(file).u8string());
  }
  const auto font = document->Fonts()->Add("Liberation Sans", fontTrueType, embedding);
  if (style.isBold) font->SetBold(true);
  if (style.isItalic) font->SetItalic(true);
  font->SetSize(14);
  const auto page = document->Pages()->Add();
  page->SetPageExtents(480, 200);
  page->SetFont(font);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    page->DrawText(lines[i], i == 1 ? 20 + indent : 20, 170 - 30 * static_cast<float>(i));
  }
  return Save(*document, name, Check::kForm).path;
}

// What pdffonts says of this font: its type, its encoding, and whether it is embedded.
Strings RowOf(const std::string& font, const std::filesystem::path& pdf) {
  std::istringstream table(test::Run({"pdffonts", pdf}).out);
  for (std::string line; std::getline(table, line);) {
    std::istringstream row(line);
    std::string name;
    Strings columns(3);
    row >> name >> columns[0] >> columns[1] >> columns[2];
    if (name == font) return columns;
  }
  return {};
}

class EmbeddedText : public testing::TestWithParam<Style> {};

TEST_P(EmbeddedText, ComesBackExactly) {
  std::string text;
  for (const std::string& line : kLines) text += line + "\n";
  EXPECT_EQ(TextOf(WriteLines(kLines, GetParam(), "text.pdf")), text + "\f");
}

TEST_P(EmbeddedText, IsInAnEmbeddedFont) {
  const auto rowOf = [](const std::filesystem::path& pdf) {
    return RowOf(GetParam().pdfName, pdf);
  };
  EXPECT_EQ(rowOf(WriteLines(kLines, GetParam(), "embedded.pdf")),
            (Strings{"TrueType", "WinAnsi", "yes"}));
  EXPECT_EQ(rowOf(WriteLines(kLines, GetParam(), "named.pdf", Embedding::kNone)),
            (Strings{"TrueType", "WinAnsi", "no"}));
}

TEST_P(EmbeddedText, IsDrawnAlikeByEveryProgram) {
  const auto pictures = PicturesOf(WriteLines(kLines, GetParam(), "text.pdf"), GetParam());
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    for (std::size_t j = i + 1; j < pictures.size(); ++j) {
      EXPECT_LT(LargestDifference(pictures[i].pixels, pictures[j].pixels), kTolerance)
          << pictures[i].program << " " << pictures[j].program;
    }
  }
}

// The comparison tells more than whether there is text.
TEST_P(EmbeddedText, WouldBeSeenToDifferByOneWrongGlyphOrHalfAPoint) {
  const auto with = [](const std::string& wrong, const std::string& right) {
    Strings lines = kLines;
    lines[1].replace(lines[1].find(right), right.size(), wrong);
    return lines;
  };
  const auto right = PicturesOf(WriteLines(kLines, GetParam(), "right.pdf"), GetParam());
  for (const auto& pdf : {WriteLines(with("cr\u00E9me", "cr\u00E8me"), GetParam(), "accent.pdf"),
                          WriteLines(with("\u201DZ", "\u201CZ"), GetParam(), "quotation-mark.pdf"),
                          WriteLines(kLines, GetParam(), "shifted.pdf", Embedding::kEmbed, 0.5F)}) {
    const auto wrong = PicturesOf(pdf, GetParam());
    for (const auto& ours : right) {
      for (const auto& other : wrong) {
        EXPECT_GT(LargestDifference(ours.pixels, other.pixels), kTolerance)
            << pdf << " " << ours.program << " " << other.program;
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(LiberationSans, EmbeddedText, testing::ValuesIn(kStyles),
                         [](const auto& style) { return std::string(style.param.name); });

}  // namespace
}  // namespace folivar::test
