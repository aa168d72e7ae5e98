#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "folivar/folivar.h"
#include "tests/support/Picture.h"
#include "tests/support/SavedDocument.h"

// Every combination of border, dash, background, alignment and decoration, as three programs draw
// it. A dot is a quarter of a point.

namespace folivar::test {
namespace {

constexpr int kDotsPerPoint = 4;
constexpr int kPageWidth = 560;
constexpr int kPageHeight = 520;
constexpr int kBoxWidth = 40;
constexpr int kBoxHeight = 22;

struct Dash {
  float on;
  float off;
};

constexpr std::array<float, 3> kBorderWidths = {0, 1, 3};
constexpr std::array<Dash, 3> kDashes = {{{1, 0}, {3, 3}, {0, 3}}};
constexpr std::array<PDFBackGroundStyle, 2> kBackStyles = {bsTransparent, bsOpaque};
constexpr std::array<PDFParaAlignment, 3> kAlignments = {alignLeft, alignCenter, alignRight};

struct Look {
  float borderWidth;
  Dash dash;
  PDFBackGroundStyle backStyle;
  PDFParaAlignment alignment;
  bool isUnderlined;
  bool isStruckOut;
  int left;
  int top;

  bool HasBorder() const { return borderWidth > 0 && dash.on > 0; }
  bool HasDashes() const { return HasBorder() && dash.off > 0; }
};

template <class Visit>
void ForEachLook(Visit visit) {
  int row = 0;
  for (const float borderWidth : kBorderWidths) {
    for (const Dash& dash : kDashes) {
      for (const PDFBackGroundStyle backStyle : kBackStyles) {
        int column = 0;
        for (const PDFParaAlignment alignment : kAlignments) {
          for (const int decoration : {0, 1, 2, 3}) {
            visit(Look{borderWidth, dash, backStyle, alignment, decoration % 2 == 1,
                       decoration >= 2, 10 + 46 * column, kPageHeight - 10 - 28 * row});
            ++column;
          }
        }
        ++row;
      }
    }
  }
}

// In Helvetica of size 7: "on" is 7.784 wide and three blanks 5.838, so the text is 21.406 wide.
// The baseline is 8.092 + 2 below the top, rounded.
constexpr double kTextWidth = 21.406;
constexpr double kBaseline = -10;

double TextStart(const Look& look) {
  if (look.alignment == alignRight) return look.left + 19;  // 18.594
  if (look.alignment == alignCenter) return look.left + 9;  // 9.297
  return look.left;
}

void AddBox(PDFPage& page, const Look& look) {
  const auto box = page.TextBoxes()->Add();
  box->SetText("on   on");
  box->SetSelLength(-7);
  box->SetSelFontSize(7);
  box->SetSelUnderline(look.isUnderlined);
  box->SetSelStrikeOut(look.isStruckOut);
  box->SetSelAlignment(look.alignment);
  box->SetMarginLeft(0);
  box->Move(static_cast<float>(look.left), static_cast<float>(look.top), kBoxWidth, kBoxHeight);
  box->SetBorderWidth(look.borderWidth);
  box->SetBorderDashPattern(look.dash.on, look.dash.off);
  box->SetBorderColor(0xA00000);
  box->SetBackStyle(look.backStyle);
  box->SetBackColor(0x00FFFF);
}

class Dots {
 public:
  explicit Dots(const Pixels& pixels) : pixels_(pixels) {}

  // Whether some dot of an area, its edges in points, is dark: of the text, a stroke or a border.
  bool IsDark(double left, double bottom, double right, double top) const {
    for (double y = bottom + kHalfDot; y < top; y += 2 * kHalfDot) {
      for (double x = left + kHalfDot; x < right; x += 2 * kHalfDot) {
        const std::string_view dot = At(x, y);
        if (Byte(dot, 0) + Byte(dot, 1) < 200) return true;
      }
    }
    return false;
  }

  // The share of dark columns.
  double DarkAcross(double left, double bottom, double right, double top) const {
    int dark = 0;
    int all = 0;
    for (double x = left; x < right; x += 2 * kHalfDot, ++all) {
      if (IsDark(x, bottom, x + 2 * kHalfDot, top)) ++dark;
    }
    return static_cast<double>(dark) / all;
  }

  // The share of dark rows.
  double DarkDown(double left, double bottom, double right, double top) const {
    int dark = 0;
    int all = 0;
    for (double y = bottom; y < top; y += 2 * kHalfDot, ++all) {
      if (IsDark(left, y, right, y + 2 * kHalfDot)) ++dark;
    }
    return static_cast<double>(dark) / all;
  }

  std::string_view At(double x, double y) const {
    const auto column = static_cast<std::size_t>(x * kDotsPerPoint);
    const auto row = static_cast<std::size_t>((kPageHeight - y) * kDotsPerPoint);
    return pixels_.At(column, row);
  }

 private:
  static constexpr double kHalfDot = 0.5 / kDotsPerPoint;

  static int Byte(std::string_view dot, std::size_t index) {
    return static_cast<unsigned char>(dot[index]);
  }

  const Pixels& pixels_;
};

// Below the text, where nothing but the left edge is. What is drawn beyond the edge depends on the
// program's edges of the clip path.
void ExpectBorder(const Dots& dots, const Look& look) {
  const double bottom = look.top - 21;
  const double top = look.top - 13;
  const auto darkAt = [&](double x) {
    return dots.DarkDown(look.left + x, bottom, look.left + x + 0.25, top);
  };
  if (!look.HasBorder()) {
    EXPECT_EQ(dots.DarkDown(look.left - 1, bottom, look.left + 2, top), 0);
    return;
  }
  const double least = look.HasDashes() ? 0.3 : 1;
  const double most = look.HasDashes() ? 0.75 : 1;
  EXPECT_GE(darkAt(0.0), least);
  EXPECT_LE(darkAt(0.0), most);
  EXPECT_GE(darkAt(1.0), look.borderWidth == 3 ? least : 0);
  EXPECT_LE(darkAt(1.0), look.borderWidth == 3 ? most : 0);
}

void ExpectBackground(const Dots& dots, const Look& look) {
  const std::string_view expected = look.backStyle == bsOpaque
                                        ? std::string_view("\xFF\xFF\x00", 3)
                                        : std::string_view("\xFF\xFF\xFF", 3);
  for (double x = look.left + 4; x < look.left + 37; x += 0.5) {
    ASSERT_EQ(dots.At(x, look.top - 16.1), expected) << x;
  }
  EXPECT_EQ(dots.At(look.left + 42.5, look.top - 10.1), "\xFF\xFF\xFF") << "outside";
}

void ExpectText(const Dots& dots, const Look& look) {
  const double start = TextStart(look);
  const double bottom = look.top + kBaseline + 0.3;
  const double top = look.top + kBaseline + 3.3;
  const double inside = look.left + 1.75;
  if (start > inside) {
    EXPECT_FALSE(dots.IsDark(inside, bottom, start - 0.25, top));
    EXPECT_TRUE(dots.IsDark(start, bottom, start + 1.5, top));
  }
  const double end = start + kTextWidth;
  if (end < look.left + 36) {
    EXPECT_FALSE(dots.IsDark(end + 0.5, bottom, look.left + 38, top));
    EXPECT_TRUE(dots.IsDark(end - 1.75, bottom, end, top));
  }
}

void ExpectStroke(double share, bool isThere, bool hasDashes) {
  EXPECT_GE(share, !isThere ? 0 : hasDashes ? 0.05 : 1);
  EXPECT_LE(share, !isThere ? 0 : hasDashes ? 0.75 : 1);
}

// Strokes have the border's colour and dashes. The strikeout is looked for between the words.
void ExpectDecorations(const Dots& dots, const Look& look) {
  const double start = TextStart(look);
  const double baseline = look.top + kBaseline;
  const double from = start + (look.alignment == alignLeft ? 2 : 0.5);
  const double to = start + kTextWidth - (look.alignment == alignRight ? 2.5 : 0.5);
  ExpectStroke(dots.DarkAcross(from, baseline - 1.25, to, baseline - 0.25), look.isUnderlined,
               look.HasDashes());
  ExpectStroke(dots.DarkAcross(start + 8.5, baseline + 1, start + 13, baseline + 2.25),
               look.isStruckOut, look.HasDashes());
}

TEST(TextBoxPictures, EveryLookIsDrawn) {
  const auto document = PDFDocument::Create();
  const auto page = document->Pages()->Add();
  page->SetPageExtents(kPageWidth, kPageHeight);
  ForEachLook([&](const Look& look) { AddBox(*page, look); });
  EXPECT_EQ(page->TextBoxes()->count(), 216);
  const SavedDocument saved = Save(*document, "sheet.pdf");
  for (const Picture& picture : PicturesOf(saved.path, 72 * kDotsPerPoint)) {
    const Dots dots(picture.pixels);
    ForEachLook([&](const Look& look) {
      SCOPED_TRACE(picture.program + ": box at " + std::to_string(look.left) + ", " +
                   std::to_string(look.top) + ", border " + std::to_string(look.borderWidth) +
                   ", dash " + std::to_string(look.dash.on) + " " + std::to_string(look.dash.off));
      ExpectBorder(dots, look);
      ExpectBackground(dots, look);
      ExpectText(dots, look);
      ExpectDecorations(dots, look);
    });
  }
}

}  // namespace
}  // namespace folivar::test
