#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

#include "folivar/folivar.h"
#include "tests/support/AfmFile.h"
#include "tests/support/FreeTypeFace.h"
#include "tests/support/PackagedFonts.h"
#include "tests/support/Random.h"
#include "tests/support/SavedDocument.h"
#include "tests/support/TestFiles.h"
#include "tests/support/Tools.h"

// Where poppler finds the words of a text box, against places computed here, in double precision,
// from the metrics files and, for TrueType faces, from what FreeType reads.

namespace folivar::test {
namespace {

constexpr double kTolerance = 0.01;  // points
constexpr double kPageHeight = 792;

struct Style {
  std::string_view face;  // a standard face, or the end of the name of a file of Liberation Serif
  double size;
  double scale = 1;  // of the size that is shown
  double rise = 0;   // shares of the size
  bool isTrueType = false;

  bool IsBold() const { return isTrueType && face.starts_with("Bold"); }
  bool IsItalic() const { return isTrueType && face.ends_with("Italic"); }
};

constexpr auto kStyles = std::to_array<Style>({
    {"Helvetica", 10},
    {"Times-Bold", 14.5},
    {"Courier", 8},
    {"Helvetica-Oblique", 11},
    {"Times-Roman", 12, 0.65, 0.35},
    {"Times-Roman", 12, 0.65, -0.1},
    {"Regular", 11, 1, 0, true},
    {"Bold", 13.25, 1, 0, true},
    {"Italic", 9.5, 1, 0, true},
    {"BoldItalic", 12, 1, 0, true},
    {"Bold", 16, 0.65, -0.1, true},
});

std::filesystem::path FileOf(const Style& style) {
  return PackagedFont("liberation/LiberationSerif-" + std::string(style.face) + ".ttf");
}

// In thousandths of the em; of the characters of ASCII.
struct Metrics {
  std::map<char, double> widths;
  double leading;
};

Metrics MetricsOfAfm(const Style& style) {
  const AfmFile file = ReadAfmFile(style.face);
  const auto box = file.header.at("FontBBox");
  Metrics metrics{{}, box[3] - box[1]};
  for (const auto& [byte, glyph] : file.glyphs)
    metrics.widths[static_cast<char>(byte)] = glyph.width;
  return metrics;
}

// As FreeType reads the file; the box has whole thousandths, cut off.
Metrics MetricsOfFile(const Style& style) {
  const FreeTypeFace file(ReadBytes(FileOf(style)));
  const auto thousandths = [&](int units) { return units * 1000 / file.UnitsPerEm(); };
  Metrics metrics{{}, static_cast<double>(thousandths(file.Box()[3]) - thousandths(file.Box()[1]))};
  const auto widths = file.Widths();
  for (std::size_t code = 32; code < 127; ++code) {
    metrics.widths[static_cast<char>(code)] = widths.at(code);
  }
  return metrics;
}

const Metrics& MetricsOf(const Style& style) {
  static std::map<std::string_view, Metrics> known;
  const auto [metrics, isNew] = known.try_emplace(style.face);
  if (isNew) metrics->second = style.isTrueType ? MetricsOfFile(style) : MetricsOfAfm(style);
  return metrics->second;
}

double WidthOf(std::string_view text, const Style& style) {
  double width = 0;
  for (const char byte : text) width += MetricsOf(style).widths.at(byte);
  return width * style.size * style.scale / 1000;
}

double LeadingOf(const Style& style) { return MetricsOf(style).leading * style.size / 1000; }

// Upright and light for TrueType styles: SetStyle does the rest.
std::shared_ptr<PDFFont> PlainFontOf(PDFDocument& document, const Style& style) {
  return style.isTrueType
             ? document.Fonts()->Add("Liberation Serif", fontTrueType, Embedding::kEmbed)
             : document.Fonts()->Add(style.face);
}

// A word, where it begins and ends, and how far its top is from the top of the page.
struct Found {
  double xMin;
  double yMin;
  double xMax;
};

std::vector<std::map<std::string, Found>> WordsOf(const std::filesystem::path& pdf) {
  const ToolResult result = Run({"pdftotext", "-bbox", pdf, "-"});
  EXPECT_EQ(result.status, 0) << result.err;
  std::vector<std::map<std::string, Found>> pages;
  static const std::regex kLine(
      R"re((<page )|<word xMin="(.*)" yMin="(.*)" xMax="(.*)" yMax=".*">(.*)</word>)re");
  for (std::sregex_iterator match(result.out.begin(), result.out.end(), kLine), end; match != end;
       ++match) {
    if ((*match)[1].matched) {
      pages.emplace_back();
    } else {
      pages.back()[(*match)[5]] = {std::stod((*match)[2]), std::stod((*match)[3]),
                                   std::stod((*match)[4])};
    }
  }
  return pages;
}

struct Word {
  std::string text;  // no other word has it
  const Style* style = nullptr;
};

struct Paragraph {
  std::vector<Word> words;
  PDFParaAlignment alignment = alignLeft;
};

std::vector<Paragraph> RandomParagraphs(Random& random) {
  constexpr std::array kAlignments = {alignLeft, alignCenter, alignRight, alignCenter, alignRight};
  std::vector<Paragraph> paragraphs;
  int number = 0;
  for (const PDFParaAlignment alignment : kAlignments) {
    Paragraph& paragraph = paragraphs.emplace_back();
    paragraph.alignment = alignment;
    for (std::size_t count = 5 + random.Below(30); count > 0; --count) {
      std::string text = "w" + std::to_string(++number);
      for (std::size_t size = random.Below(8); size > 0; --size) {
        text += static_cast<char>('a' + random.Below(26));
      }
      paragraph.words.push_back({text, &kStyles[random.Below(kStyles.size())]});
    }
  }
  return paragraphs;
}

void SetStyle(PDFTextBox& box, const Style& style) {
  if (style.IsBold()) box.SetSelBold(true);
  if (style.IsItalic()) box.SetSelItalic(true);
}

// Words are parted by blanks and paragraphs by line ends, in the style of the word before.
void Fill(PDFTextBox& box, const std::vector<Paragraph>& paragraphs,
          const std::map<const Style*, std::shared_ptr<PDFFont>>& fonts) {
  std::string text;
  for (const Paragraph& paragraph : paragraphs) {
    for (const Word& word : paragraph.words) {
      text += word.text + (&word == &paragraph.words.back() ? "\n" : " ");
    }
  }
  box.SetText(text);
  std::int32_t start = 0;
  for (const Paragraph& paragraph : paragraphs) {
    const std::int32_t paragraphStart = start;
    for (const Word& word : paragraph.words) {
      const auto length = static_cast<std::int32_t>(word.text.size() + 1);
      box.SetSelStart(start);
      box.SetSelLength(length);
      box.SetSelFont(fonts.at(word.style)->Clone());
      SetStyle(box, *word.style);
      start += length;
    }
    box.SetSelStart(paragraphStart + 1);
    if (paragraph.alignment != alignLeft) box.SetSelAlignment(paragraph.alignment);
  }
}

struct Expected {
  double x;
  double baseline;
};

std::map<std::string, Expected> PlacesOf(const std::vector<Paragraph>& paragraphs,
                                         const PDFTextBox& box) {
  std::map<std::string, Expected> places;
  const double room = std::nearbyint(double{box.Width()} - box.MarginLeft() - box.MarginRight());
  double baseline = 0;
  bool isFirstLine = true;
  for (const Paragraph& paragraph : paragraphs) {
    const auto& words = paragraph.words;
    for (std::size_t first = 0, end = 0; first < words.size(); first = end) {
      double filled = 0;
      double leading = 0;
      double visible = 0;
      for (end = first; end < words.size(); ++end) {
        const Word& word = words[end];
        const double width = WidthOf(word.text, *word.style);
        const bool isLast = end + 1 == words.size();
        const double withBlank = width + (isLast ? 0 : WidthOf(" ", *word.style));
        if (filled + withBlank >= room && end > first) break;
        visible = filled + width;
        filled += withBlank;
        leading = std::max(leading, LeadingOf(*word.style));
      }
      baseline =
          isFirstLine ? std::nearbyint(box.Top() - leading - box.MarginTop()) : baseline - leading;
      isFirstLine = false;
      double shift = 0;
      if (paragraph.alignment == alignRight) shift = box.Width() - visible;
      if (paragraph.alignment == alignCenter) shift = (box.Width() - visible) / 2;
      double x = std::nearbyint(box.Left() + box.MarginLeft()) + std::nearbyint(shift);
      for (std::size_t index = first; index < end; ++index) {
        const Word& word = words[index];
        places[word.text] = {x, baseline + word.style->rise * word.style->size};
        x += WidthOf(word.text, *word.style) + WidthOf(" ", *word.style);
      }
    }
  }
  return places;
}

TEST(TextBoxPlacement, EveryWordIsWhereTheMetricsPutIt) {
  Random random;
  SCOPED_TRACE(random.Trace());
  const auto document = PDFDocument::Create();
  for (const Style& style : kStyles) {
    if (style.isTrueType) document->FontFiles()->AddFile(FileOf(style).u8string());
  }
  std::map<const Style*, std::shared_ptr<PDFFont>> fonts;
  for (const Style& style : kStyles) {
    const auto font = PlainFontOf(*document, style);
    font->SetSize(static_cast<float>(style.size));
    font->SetSubscript(style.rise < 0);
    font->SetSuperscript(style.rise > 0);
    fonts[&style] = font;
  }

  // The first page tells how far above its baseline poppler sees the top of a word.
  const auto samples = document->Pages()->Add();
  constexpr double kSampleBaseline = 100;
  for (std::size_t style = 0; style < kStyles.size(); ++style) {
    const auto font = PlainFontOf(*document, kStyles[style]);
    if (kStyles[style].IsBold()) font->SetBold(true);
    if (kStyles[style].IsItalic()) font->SetItalic(true);
    font->SetSize(static_cast<float>(kStyles[style].size * kStyles[style].scale));
    samples->SetFont(font);
    samples->DrawText("sample" + std::to_string(style), 54 * static_cast<float>(style), 100);
  }

  struct Filled {
    std::vector<Paragraph> paragraphs;
    std::shared_ptr<PDFTextBox> box;
  };
  std::vector<Filled> pages;
  for (const float width : {180.0F, 240.5F, 300.25F, 420.75F, 500.5F}) {
    Filled filled{RandomParagraphs(random), document->Pages()->Add()->TextBoxes()->Add()};
    filled.box->Move(50.3F, 779.6F, width, 770);
    filled.box->SetMargins(3.25F, 5.5F, 7, 0);
    filled.box->SetBorderWidth(0);
    Fill(*filled.box, filled.paragraphs, fonts);
    pages.push_back(std::move(filled));
  }
  const SavedDocument saved = Save(*document, "placed.pdf");

  const auto found = WordsOf(saved.path);
  ASSERT_EQ(found.size(), pages.size() + 1);
  std::map<const Style*, double> tops;
  for (std::size_t style = 0; style < kStyles.size(); ++style) {
    const Found& sample = found[0].at("sample" + std::to_string(style));
    tops[&kStyles[style]] = kPageHeight - kSampleBaseline - sample.yMin;
  }
  std::size_t words = 0;
  for (std::size_t page = 0; page < pages.size(); ++page) {
    const auto places = PlacesOf(pages[page].paragraphs, *pages[page].box);
    EXPECT_EQ(found[page + 1].size(), places.size());
    for (const Paragraph& paragraph : pages[page].paragraphs) {
      for (const Word& word : paragraph.words) {
        SCOPED_TRACE(word.text + " on page " + std::to_string(page + 2));
        const Expected& expected = places.at(word.text);
        ASSERT_TRUE(found[page + 1].contains(word.text));
        const Found& place = found[page + 1].at(word.text);
        EXPECT_NEAR(place.xMin, expected.x, kTolerance);
        EXPECT_NEAR(place.xMax, expected.x + WidthOf(word.text, *word.style), kTolerance);
        EXPECT_NEAR(place.yMin, kPageHeight - expected.baseline - tops.at(word.style), kTolerance);
        ++words;
      }
    }
  }
  EXPECT_GT(words, 200U);
}

}  // namespace
}  // namespace folivar::test
