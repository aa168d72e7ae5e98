#include "TitlePage.h"

#include <algorithm>
#include <memory>

#include "common/FittedText.h"

namespace {

constexpr float kHorizon = 236;  // where the coloured ground ends
constexpr float kTitleBaseline = 470;
constexpr float kTitleGap = 46;
constexpr float kSubtitleLeading = 21;
constexpr std::size_t kMostSubtitleLines = 3;  // of each paragraph

// A fan of sheets, which rises over the edge of the ground.
void DrawFan(folivar::PDFPage& page) {
  constexpr Box kSheet = {0, 0, 92, 130};
  constexpr int kSheets = 7;
  const auto state = page.GraphicsState();
  for (int sheet = 0; sheet < kSheets; ++sheet) {
    const auto step = static_cast<float>(sheet);
    state->Push();
    state->Translate(kRight - kSheet.width + 10, kHorizon - 96);
    state->Rotate(54 - 9 * step);
    Fill(page, kSheet, Rgb(0xF6, 0xF8, 0xF7));
    Outline(page, kSheet, 0.6F, sheet + 1 < kSheets ? kHairline : kTeal);
    state->Pop();
  }
}

}  // namespace

void DrawTitlePage(PagePen& pen, const BookStyle& style, const Manual& manual) {
  pen.FillBox({0, kHorizon, kPage.width, kPage.height - kHorizon}, kTeal);
  pen.FillBox({kText.left, kTitleBaseline + 62, 46, 5}, kOchre);
  DrawFan(*pen.Page());

  const float width = style.title.WidthOf(manual.title);
  const TextStyle title = {style.title.font->Clone(), style.title.color};
  title.font->SetSize(title.font->Size() * kText.width / std::max(width, kText.width));
  pen.WriteText(title, manual.title, kText.left - 2, kTitleBaseline);

  float baseline = kTitleBaseline - kTitleGap;
  for (const std::string& paragraph : manual.titleLines) {
    for (const std::u16string& line :
         Wrapped(paragraph, *style.subtitle.font, kText.width, kMostSubtitleLines)) {
      if (baseline < kHorizon + kSubtitleLeading) return;
      pen.WriteText(style.subtitle, folivar::Text(line).Utf8(), kText.left, baseline);
      baseline -= kSubtitleLeading;
    }
    baseline -= kSubtitleLeading / 3;
  }
}
