#include "Specimen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "CodePage1252.h"

using folivar::htaCenter;
using folivar::htaLeft;
using folivar::htaRight;
using folivar::PDFDocument;
using folivar::PDFFont;
using folivar::PDFHorzTextAlignment;
using folivar::PDFPage;
using folivar::Rgb;
using folivar::Text;
using folivar::TextView;

namespace {

constexpr std::int32_t kInk = Rgb(0x22, 0x26, 0x2B);
constexpr std::int32_t kQuietInk = Rgb(0x6B, 0x72, 0x7A);
constexpr std::int32_t kBoxFill = Rgb(0xF8, 0xF6, 0xF1);

// The lines of the measures, strong beside the name and faint behind the many characters.
struct LineColors {
  std::int32_t box;
  std::int32_t reach;  // ascent and descent
  std::int32_t baseline;
  std::int32_t advance;
};
constexpr LineColors kStrong = {Rgb(0xA3, 0x92, 0x66), Rgb(0x4E, 0x8C, 0xA2), Rgb(0x1F, 0x4E, 0x5F),
                                Rgb(0xC9, 0x4B, 0x32)};
constexpr LineColors kFaint = {Rgb(0xD9, 0xCF, 0xB5), Rgb(0xB7, 0xD3, 0xDC), Rgb(0x6F, 0x9D, 0xAC),
                               Rgb(0xE0, 0x8E, 0x7E)};

// Points; y grows upwards.
constexpr float kPageWidth = 595.276F;
constexpr float kPageHeight = 841.89F;
constexpr float kLeft = 54;
constexpr float kRight = kPageWidth - kLeft;
constexpr float kContentWidth = kRight - kLeft;
constexpr float kHeadBaseline = kPageHeight - 44;
constexpr float kNameTop = kPageHeight - 62;
constexpr float kNameHeight = 112;
constexpr float kNumbersDepth = 7;  // below what they belong to
constexpr float kStylesDepth = 38;
constexpr float kStylesPitch = 21;
constexpr float kStyleLabelWidth = 48;
constexpr float kLargestStyle = 17;
constexpr float kGridTopGap = 18;
constexpr float kGridBottom = 62;
constexpr float kCellGap = 3;
constexpr float kFootBaseline = 40;
constexpr float kHairline = 0.3F;

constexpr char8_t kSample[] = u8"“Zwölf Boxkämpfer” – voilà, crème brûlée & jalapeño: £8 or €9.95";

// In thousandths of the em, from the origin of a glyph; y grows upwards.
struct FaceMeasures {
  float boxLeft;
  float boxRight;
  float boxTop;
  float boxBottom;
  float ascent;
  float descent;
  float widest;  // advance of any character

  // Of all these together; never empty, whatever the font says.
  float Left() const { return std::min(boxLeft, 0.0F); }
  float Width() const { return std::max({boxRight, widest, 1.0F}) - Left(); }
  float Top() const { return std::max({boxTop, ascent, 1.0F}); }
  float Bottom() const { return std::min(boxBottom, descent); }
  float Height() const { return Top() - Bottom(); }
};

// A face at a size, with its origin at a place on the page.
struct Placed {
  float scale;  // points for a thousandth of the em
  float x;
  float y;

  float Right(float thousandths) const { return x + thousandths * scale; }
  float Up(float thousandths) const { return y + thousandths * scale; }
};

// How the characters are spread over what a page has left.
struct Grid {
  std::size_t columns;
  std::size_t rows;
  float scale;
};

// Draws the page of one family.
class SpecimenPage {
 public:
  SpecimenPage(PDFDocument& document, const Text& family);

  void Draw(std::size_t number, std::size_t pageCount);

 private:
  FaceMeasures MeasureFace() const;
  Grid FindGrid(float height) const;

  void DrawHead(std::size_t number, std::size_t pageCount);
  void DrawName();
  void DrawNameMeasures(const Placed& name);
  void DrawStyles();
  void DrawGrid();
  void DrawCell(const CodedCharacter& character, const Placed& cell);
  void DrawFoot();

  void Write(const std::shared_ptr<PDFFont>& font, std::int32_t color, TextView text, float x,
             float baseline, PDFHorzTextAlignment alignment = htaLeft);
  void DrawHorizontal(std::int32_t color, float left, float right, float y);
  void DrawVertical(std::int32_t color, float x, float bottom, float top);

  std::shared_ptr<PDFPage> page_;
  std::shared_ptr<PDFFont> head_;
  std::shared_ptr<PDFFont> label_;
  std::shared_ptr<PDFFont> number_;
  std::shared_ptr<PDFFont> face_;
  std::vector<CodedCharacter> characters_ = PrintableCharacters();
  FaceMeasures measures_;
  float y_ = kNameTop;  // the top of what is still free
};

std::u16string Single(char16_t character) { return std::u16string(1, character); }

std::string Rounded(float number) { return std::to_string(std::lround(number)); }

std::string Hexadecimal(unsigned code) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  return {kDigits[code / 16], kDigits[code % 16]};
}

// Captions are in a standard face, which can be read whatever the family shows.
SpecimenPage::SpecimenPage(PDFDocument& document, const Text& family)
    : page_(document.Pages()->Add()) {
  const auto fonts = document.Fonts();
  const auto standard = [&](const char* faceName, float size) {
    auto font = fonts->Add(faceName);
    font->SetSize(size);
    return font;
  };
  head_ = standard("Helvetica-Bold", 8);
  label_ = standard("Helvetica", 6);
  number_ = standard("Helvetica", 4.5F);
  face_ = fonts->Add(family, folivar::fontTrueType, folivar::Embedding::kEmbed);
  measures_ = MeasureFace();
  page_->SetPageExtents(kPageWidth, kPageHeight);
  page_->GraphicsState()->SetLineWidth(kHairline);
}

// At a size of 1000 points, measures in points are those in thousandths.
FaceMeasures SpecimenPage::MeasureFace() const {
  face_->SetSize(1000);
  float widest = 0;
  for (const CodedCharacter& character : characters_) {
    widest = std::max(widest, face_->TextWidth(Single(character.character)));
  }
  return {face_->FontBoxLeft(),
          face_->FontBoxRight(),
          face_->FontBoxTop(),
          face_->FontBoxBottom(),
          face_->Ascender(),
          face_->Descender(),
          widest};
}

void SpecimenPage::Draw(std::size_t number, std::size_t pageCount) {
  DrawHead(number, pageCount);
  DrawName();
  DrawStyles();
  DrawGrid();
  DrawFoot();
}

void SpecimenPage::DrawHead(std::size_t number, std::size_t pageCount) {
  Write(head_, kInk, face_->FontFace(), kLeft, kHeadBaseline);
  Write(label_, kQuietInk, std::to_string(number) + " of " + std::to_string(pageCount), kRight,
        kHeadBaseline, htaRight);
}

// The family's name, as large as there is room for, each glyph between the lines of its width.
void SpecimenPage::DrawName() {
  const std::u16string name = face_->FontFace().Utf16();
  face_->SetSize(1000);
  const float scale =
      std::min(kContentWidth / face_->TextWidth(name), kNameHeight / measures_.Height());
  const Placed placed = {scale, kLeft, y_ - measures_.Top() * scale};
  const float bottom = placed.Up(measures_.Bottom());
  DrawNameMeasures(placed);

  float width = 0;
  DrawVertical(kStrong.advance, kLeft, bottom, y_);
  for (const char16_t character : name) {
    const float advance = face_->TextWidth(Single(character));
    Write(number_, kStrong.advance, Rounded(advance), placed.Right(width + advance / 2),
          bottom - kNumbersDepth, htaCenter);
    width += advance;
    DrawVertical(kStrong.advance, placed.Right(width), bottom, y_);
  }
  face_->SetSize(1000 * scale);
  Write(face_, kInk, name, placed.x, placed.y);
  y_ = bottom;
}

void SpecimenPage::DrawNameMeasures(const Placed& name) {
  const auto draw = [&](std::int32_t color, const std::string& what, float thousandths,
                        PDFHorzTextAlignment side) {
    constexpr float kGap = 4;
    const float y = name.Up(thousandths);
    DrawHorizontal(color, kLeft, kRight, y);
    Write(label_, color, what + " " + Rounded(thousandths),
          side == htaRight ? kLeft - kGap : kRight + kGap, y - 2, side);
  };
  page_->GraphicsState()->SetFillColor(kBoxFill);
  page_->DrawRect(kLeft, name.Up(measures_.boxBottom), kContentWidth,
                  name.Up(measures_.boxTop) - name.Up(measures_.boxBottom), folivar::Paint::kFill);
  draw(kStrong.box, "box", measures_.boxTop, htaRight);
  draw(kStrong.box, "box", measures_.boxBottom, htaRight);
  draw(kStrong.reach, "ascent", measures_.ascent, htaLeft);
  draw(kStrong.reach, "descent", measures_.descent, htaLeft);
  draw(kStrong.baseline, "baseline", 0, htaLeft);
}

// A line in each style, all of one size.
void SpecimenPage::DrawStyles() {
  struct Style {
    const char* name;
    bool isBold;
    bool isItalic;
  };
  static constexpr std::array<Style, 4> kStyles = {{{"Regular", false, false},
                                                    {"Italic", false, true},
                                                    {"Bold", true, false},
                                                    {"Bold italic", true, true}}};
  std::array<std::shared_ptr<PDFFont>, kStyles.size()> fonts;
  float widest = 0;
  for (std::size_t i = 0; i < fonts.size(); ++i) {
    fonts[i] = face_->Clone();
    fonts[i]->SetSize(1);
    fonts[i]->SetBold(kStyles[i].isBold);
    fonts[i]->SetItalic(kStyles[i].isItalic);
    widest = std::max(widest, fonts[i]->TextWidth(kSample));
  }
  y_ -= kStylesDepth;
  const float size = std::min((kContentWidth - kStyleLabelWidth) / widest, kLargestStyle);
  for (std::size_t i = 0; i < fonts.size(); ++i) {
    fonts[i]->SetSize(size);
    const float baseline = y_ - static_cast<float>(i) * kStylesPitch;
    Write(label_, kQuietInk, kStyles[i].name, kLeft, baseline);
    Write(fonts[i], kInk, kSample, kLeft + kStyleLabelWidth, baseline);
  }
  y_ -= static_cast<float>(fonts.size() - 1) * kStylesPitch;
}

// With as many columns as make the characters largest.
Grid SpecimenPage::FindGrid(float height) const {
  const std::size_t count = characters_.size();
  Grid best = {};
  for (std::size_t columns = 8; columns <= 32; ++columns) {
    const std::size_t rows = (count + columns - 1) / columns;
    const float width = kContentWidth / static_cast<float>(columns) - kCellGap;
    const float rowHeight = height / static_cast<float>(rows) - kCellGap - kNumbersDepth;
    const float scale = std::min(width / measures_.Width(), rowHeight / measures_.Height());
    if (scale > best.scale) best = {columns, rows, scale};
  }
  return best;
}

void SpecimenPage::DrawGrid() {
  const float top = y_ - kGridTopGap;
  const float height = top - kGridBottom;
  const auto [columns, rows, scale] = FindGrid(height);
  const float columnPitch =
      (kContentWidth - measures_.Width() * scale) / static_cast<float>(columns - 1);
  const float rowPitch =
      (height - measures_.Height() * scale - kNumbersDepth) / static_cast<float>(rows - 1);

  const float left = kLeft - measures_.Left() * scale;
  const float firstBaseline = top - measures_.Top() * scale;

  face_->SetSize(1000 * scale);
  for (std::size_t i = 0; i < characters_.size(); ++i) {
    const std::size_t row = i / columns;
    const std::size_t column = i % columns;
    DrawCell(characters_[i], {scale, left + static_cast<float>(column) * columnPitch,
                              firstBaseline - static_cast<float>(row) * rowPitch});
  }
}

// A glyph in the face's box, its code and its width below.
void SpecimenPage::DrawCell(const CodedCharacter& character, const Placed& cell) {
  const std::u16string glyph = Single(character.character);
  const float advance = face_->TextWidth(glyph) / cell.scale;
  const float left = cell.Right(measures_.boxLeft);
  const float right = cell.Right(measures_.boxRight);
  const float bottom = cell.Up(measures_.boxBottom);
  const float ascent = cell.Up(measures_.ascent);
  const float descent = cell.Up(measures_.descent);

  page_->GraphicsState()->SetFillColor(kBoxFill);
  page_->GraphicsState()->SetStrokeColor(kFaint.box);
  page_->DrawRect(left, bottom, right - left, cell.Up(measures_.boxTop) - bottom,
                  folivar::Paint::kStrokeAndFill);
  DrawHorizontal(kFaint.reach, left, right, ascent);
  DrawHorizontal(kFaint.reach, left, right, descent);
  DrawHorizontal(kFaint.baseline, left, right, cell.y);
  DrawVertical(kFaint.advance, cell.x, descent, ascent);
  DrawVertical(kFaint.advance, cell.Right(advance), descent, ascent);
  Write(face_, kInk, glyph, cell.x, cell.y);

  const float below = cell.Up(measures_.Bottom()) - kNumbersDepth + 2;
  Write(number_, kQuietInk, Hexadecimal(character.code), left, below);
  Write(number_, kStrong.advance, Rounded(advance), right, below, htaRight);
}

void SpecimenPage::DrawFoot() {
  struct Entry {
    const char* text;
    std::int32_t color;
  };
  static constexpr std::array<Entry, 4> kEntries = {{{"font box", kStrong.box},
                                                     {"ascent and descent", kStrong.reach},
                                                     {"baseline", kStrong.baseline},
                                                     {"advance width", kStrong.advance}}};
  constexpr float kDash = 10;
  constexpr float kGap = 4;
  float x = kLeft;
  for (const Entry& entry : kEntries) {
    DrawHorizontal(entry.color, x, x + kDash, kFootBaseline + 2);
    x += kDash + kGap;
    Write(label_, kQuietInk, entry.text, x, kFootBaseline);
    x += label_->TextWidth(entry.text) + 3 * kGap;
  }
  Write(label_, kQuietInk, "code page 1252; widths in thousandths of the em", kRight, kFootBaseline,
        htaRight);
}

void SpecimenPage::Write(const std::shared_ptr<PDFFont>& font, std::int32_t color, TextView text,
                         float x, float baseline, PDFHorzTextAlignment alignment) {
  page_->SetFont(font);
  page_->GraphicsState()->SetFillColor(color);
  page_->DrawTextAligned(text, x, baseline, 0, 0, alignment);
}

void SpecimenPage::DrawHorizontal(std::int32_t color, float left, float right, float y) {
  page_->GraphicsState()->SetStrokeColor(color);
  page_->DrawLine(left, y, right, y);
}

void SpecimenPage::DrawVertical(std::int32_t color, float x, float bottom, float top) {
  page_->GraphicsState()->SetStrokeColor(color);
  page_->DrawLine(x, bottom, x, top);
}

}  // namespace

void DrawSpecimen(PDFDocument& document, const std::vector<Text>& families) {
  for (std::size_t i = 0; i < families.size(); ++i) {
    SpecimenPage(document, families[i]).Draw(i + 1, families.size());
  }
}
