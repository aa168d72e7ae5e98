#include "CatalogueLayout.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

#include "common/Box.h"
#include "common/FittedText.h"
#include "common/Ink.h"

using folivar::htaCenter;
using folivar::PDFDocument;
using folivar::PDFFont;
using folivar::PDFImage;
using folivar::PDFPage;
using folivar::PDFTemplate;
using folivar::Rgb;

namespace {

constexpr std::int32_t kInk = Rgb(0x22, 0x26, 0x2B);
constexpr std::int32_t kQuietInk = Rgb(0x6E, 0x6A, 0x63);
constexpr std::int32_t kTeal = Rgb(0x1F, 0x4E, 0x5F);
constexpr std::int32_t kOchre = Rgb(0xD9, 0xA4, 0x41);
constexpr std::int32_t kRed = Rgb(0xC0, 0x4F, 0x36);
constexpr std::int32_t kPaper = Rgb(0xFA, 0xF6, 0xEE);
constexpr std::int32_t kShadow = Rgb(0xE4, 0xDC, 0xCD);
constexpr std::int32_t kMoulding = Rgb(0x3A, 0x31, 0x2B);
constexpr std::int32_t kMat = Rgb(0xFF, 0xFE, 0xFB);
constexpr std::int32_t kMatEdge = Rgb(0xD5, 0xCE, 0xC0);

// Points; y grows upwards.
constexpr Box kPage = {0, 0, 595.276F, 841.89F};
constexpr float kCenter = kPage.width / 2;
constexpr float kMargin = 66;
constexpr float kContentWidth = kPage.width - 2 * kMargin;
constexpr float kPageFrame = 30;    // from the edges of the page
constexpr float kPageFrameGap = 3;  // between its two lines
constexpr float kLogoSize = 31;

constexpr float kCoverTitleBaseline = 668;
constexpr float kCoverLineBaseline = 640;
constexpr Box kCoverRoom = {kMargin, 104, kContentWidth, 484};  // for the picture
constexpr float kCoverMat = 24;

constexpr std::size_t kColumns = 2;
constexpr std::size_t kPicturesPerPage = 2 * kColumns;
constexpr Box kFirstFrame = {kMargin, 489, 218, 248};  // at the top left
constexpr float kColumnPitch = kContentWidth - kFirstFrame.width;
constexpr float kRowPitch = 350;
constexpr float kMouldingWidth = 3;
constexpr float kMatWidth = 15;

constexpr float kCaptionDepth = 21;  // from the frame down to the title's baseline
constexpr float kCaptionGap = 3;
constexpr float kCaptionLeading = 12.5F;
constexpr std::size_t kCaptionLines = 3;

// "one picture", "twelve pictures", "13 pictures"
std::string CountOf(std::size_t pictures) {
  static constexpr std::array kWords = {"no",    "one",   "two",  "three", "four",   "five",  "six",
                                        "seven", "eight", "nine", "ten",   "eleven", "twelve"};
  const std::string number = pictures < kWords.size() ? kWords[pictures] : std::to_string(pictures);
  return number + (pictures == 1 ? " picture" : " pictures");
}

Box BoxOf(const PDFImage& image) {
  return {0, 0, static_cast<float>(image.Width()), static_cast<float>(image.Height())};
}

// Draws one catalogue.
class CatalogueLayout {
 public:
  CatalogueLayout(PDFDocument& document, const CatalogueNames& names,
                  const std::vector<Picture>& pictures, const Typeface& typeface);

  void Draw();

 private:
  std::shared_ptr<PDFFont> ItalicFace(const Typeface& typeface) const;
  static TextStyle Style(const std::shared_ptr<PDFFont>& face, float size, std::int32_t color);

  std::shared_ptr<PDFTemplate> DrawStationery() const;
  static void DrawLogo(PDFTemplate& stationery, const Box& logo);

  void AddPage(const std::shared_ptr<PDFImage>& thumbnail);
  void DrawCover();
  void DrawPicturePage(std::size_t first);
  void DrawFrame(const Box& frame);
  void DrawInFrame(const std::shared_ptr<PDFImage>& image, const Box& place);
  void DrawCaption(std::size_t index, float left, float top);
  void DrawPageNumber();

  PDFDocument& document_;
  const CatalogueNames& names_;
  const std::vector<Picture>& pictures_;
  std::shared_ptr<PDFFont> upright_;
  std::shared_ptr<PDFFont> italic_;
  TextStyle house_;
  TextStyle coverTitle_;
  TextStyle coverLine_;
  TextStyle number_;
  TextStyle title_;
  TextStyle caption_;
  TextStyle pageNumber_;
  std::shared_ptr<PDFTemplate> stationery_;
  std::shared_ptr<PDFPage> page_;  // the one being drawn
};

CatalogueLayout::CatalogueLayout(PDFDocument& document, const CatalogueNames& names,
                                 const std::vector<Picture>& pictures, const Typeface& typeface)
    : document_(document),
      names_(names),
      pictures_(pictures),
      upright_(AddUpright(document, typeface, "Times-Roman")),
      italic_(ItalicFace(typeface)),
      house_(Style(upright_, 8.5F, kTeal)),
      coverTitle_(Style(upright_, 46, kInk)),
      coverLine_(Style(italic_, 15, kQuietInk)),
      number_(Style(upright_, 13, kRed)),
      title_(Style(italic_, 13, kInk)),
      caption_(Style(upright_, 9, kQuietInk)),
      pageNumber_(Style(upright_, 9, kTeal)),
      stationery_(DrawStationery()) {
  const auto preferences = document.ViewerPreferences();
  preferences->SetPageLayout(folivar::plsTwoColumnRight);
  preferences->SetPageMode(folivar::pmsUseThumbs);
}

// The styles of a TrueType family are one font that changes, the standard faces fonts of their own.
std::shared_ptr<PDFFont> CatalogueLayout::ItalicFace(const Typeface& typeface) const {
  if (typeface.family.empty()) return document_.Fonts()->Add("Times-Italic");
  auto italic = upright_->Clone();
  italic->SetItalic(true);
  return italic;
}

TextStyle CatalogueLayout::Style(const std::shared_ptr<PDFFont>& face, float size,
                                 std::int32_t color) {
  auto font = face->Clone();
  font->SetSize(size);
  return {font, color};
}

// What all pages have in common, in the file once: paper, page frame, logo and header.
std::shared_ptr<PDFTemplate> CatalogueLayout::DrawStationery() const {
  auto stationery = document_.Templates()->Add("stationery");
  const Box frame = kPage.Inset(kPageFrame);
  Fill(*stationery, kPage, kPaper);
  Outline(*stationery, frame, 1.1F, kTeal);
  Outline(*stationery, frame.Inset(kPageFrameGap), 0.3F, kTeal);

  // In the middle of the frame's upper lines, which it interrupts.
  const Box logo = {kCenter - kLogoSize / 2, frame.Top() - (kPageFrameGap + kLogoSize) / 2,
                    kLogoSize, kLogoSize};
  Fill(*stationery, logo.Inset(-9), kPaper);
  DrawLogo(*stationery, logo);
  WriteSpaced(*stationery, house_, Shortened(names_.house, *house_.font, kContentWidth), kCenter,
              logo.bottom - 18);
  return stationery;
}

// Four pictures around a fifth.
void CatalogueLayout::DrawLogo(PDFTemplate& stationery, const Box& logo) {
  struct Tile {
    Box fifths;  // of the logo
    std::int32_t color;
  };
  static constexpr std::array<Tile, 5> kTiles = {{{{0, 2, 2, 3}, kTeal},
                                                  {{2, 3, 3, 2}, kOchre},
                                                  {{3, 0, 2, 3}, kTeal},
                                                  {{0, 0, 3, 2}, kRed},
                                                  {{2, 2, 1, 1}, kInk}}};
  constexpr float kFifth = kLogoSize / 5;
  for (const auto& [fifths, color] : kTiles) {
    const Box tile = {logo.left + fifths.left * kFifth, logo.bottom + fifths.bottom * kFifth,
                      fifths.width * kFifth, fifths.height * kFifth};
    Fill(stationery, tile.Inset(0.8F), color);
  }
}

void CatalogueLayout::Draw() {
  DrawCover();
  for (std::size_t first = 0; first < pictures_.size(); first += kPicturesPerPage) {
    DrawPicturePage(first);
  }
}

void CatalogueLayout::AddPage(const std::shared_ptr<PDFImage>& thumbnail) {
  page_ = document_.Pages()->Add();
  page_->SetPageExtents(kPage.width, kPage.height);
  page_->SetThumbnail(thumbnail);
  page_->DrawTemplate(stationery_);
}

void CatalogueLayout::DrawCover() {
  const auto& image = pictures_.front().image;
  AddPage(image);

  const float width = std::max(coverTitle_.WidthOf(names_.title), kContentWidth);
  const TextStyle fitting =
      Style(coverTitle_.font, coverTitle_.font->Size() * kContentWidth / width, coverTitle_.color);
  Write(*page_, fitting, names_.title, kCenter, kCoverTitleBaseline, htaCenter);
  Write(*page_, coverLine_, "A catalogue of " + CountOf(pictures_.size()), kCenter,
        kCoverLineBaseline, htaCenter);

  const Box place = BoxOf(*image).FittedInto(kCoverRoom.Inset(kCoverMat));
  DrawFrame(place.Inset(-kCoverMat));
  DrawInFrame(image, place);
}

void CatalogueLayout::DrawPicturePage(std::size_t first) {
  AddPage(pictures_[first].image);
  const std::size_t end = std::min(first + kPicturesPerPage, pictures_.size());
  for (std::size_t i = first; i < end; ++i) {
    const std::size_t column = (i - first) % kColumns;
    const std::size_t row = (i - first) / kColumns;
    const Box frame = kFirstFrame.Moved(static_cast<float>(column) * kColumnPitch,
                                        -static_cast<float>(row) * kRowPitch);
    const auto& image = pictures_[i].image;
    DrawFrame(frame);
    DrawInFrame(image, BoxOf(*image).FittedInto(frame.Inset(kMouldingWidth + kMatWidth)));
    DrawCaption(i, frame.left, frame.bottom);
  }
  DrawPageNumber();
}

// From the wall upwards: shadow, moulding, mat.
void CatalogueLayout::DrawFrame(const Box& frame) {
  Fill(*page_, frame.Moved(2.5F, -2.5F), kShadow);
  Fill(*page_, frame, kMoulding);
  Fill(*page_, frame.Inset(kMouldingWidth), kMat);
}

void CatalogueLayout::DrawInFrame(const std::shared_ptr<PDFImage>& image, const Box& place) {
  page_->DrawImage(image, place.left, place.bottom, place.width, place.height);
  Outline(*page_, place.Inset(-1), 0.5F, kMatEdge);
}

void CatalogueLayout::DrawCaption(std::size_t index, float left, float top) {
  const auto& [image, title, caption] = pictures_[index];
  const float indent = number_.WidthOf(std::to_string(pictures_.size())) + 8;
  const float width = kFirstFrame.width - indent;
  float baseline = top - kCaptionDepth;
  Write(*page_, number_, std::to_string(index + 1), left, baseline);
  Write(*page_, title_, Shortened(title, *title_.font, width), left + indent, baseline);
  baseline -= kCaptionGap;
  for (const auto& line : Wrapped(caption, *caption_.font, width, kCaptionLines)) {
    baseline -= kCaptionLeading;
    Write(*page_, caption_, line, left + indent, baseline);
  }
}

// In the middle of the page frame's lower lines, which it interrupts.
void CatalogueLayout::DrawPageNumber() {
  const std::string number = std::to_string(document_.Pages()->count());
  constexpr float kMiddle = kPageFrame + kPageFrameGap / 2;
  const float width = pageNumber_.WidthOf(number) + 18;
  Fill(*page_, {kCenter - width / 2, kMiddle - 4, width, 8}, kPaper);
  Write(*page_, pageNumber_, number, kCenter, kMiddle - 3, htaCenter);
}

}  // namespace

void LayOutCatalogue(PDFDocument& document, const CatalogueNames& names,
                     const std::vector<Picture>& pictures, const Typeface& typeface) {
  CatalogueLayout(document, names, pictures, typeface).Draw();
}
