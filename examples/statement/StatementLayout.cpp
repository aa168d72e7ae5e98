#include "StatementLayout.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numbers>
#include <utility>
#include <vector>

#include "common/FittedText.h"

using folivar::htaLeft;
using folivar::htaRight;
using folivar::PDFDocument;
using folivar::PDFFont;
using folivar::PDFHorzTextAlignment;
using folivar::PDFPage;
using folivar::Rgb;

namespace {

constexpr std::int32_t kInk = Rgb(0x22, 0x26, 0x2B);
constexpr std::int32_t kQuietInk = Rgb(0x6B, 0x72, 0x7A);
constexpr std::int32_t kAccent = Rgb(0x1F, 0x4E, 0x5F);
constexpr std::int32_t kHairline = Rgb(0xC4, 0xC9, 0xCE);
constexpr std::int32_t kBand = Rgb(0xF5, 0xF6, 0xF7);
constexpr std::int32_t kWatermark = Rgb(0xEC, 0xED, 0xEF);

constexpr char kWatermarkText[] = "SPECIMEN";

struct TextStyle {
  std::shared_ptr<PDFFont> font;
  std::int32_t color;

  float WidthOf(const std::string& text) const { return font->TextWidth(text); }
};

// From left to right; text is aligned within it.
struct Column {
  float left;
  float width;

  float Right() const { return left + width; }
};

std::string LongDate(Date date) {
  static constexpr std::array kMonths = {"January",   "February", "March",    "April",
                                         "May",       "June",     "July",     "August",
                                         "September", "October",  "November", "December"};
  return std::to_string(static_cast<unsigned>(date.day())) + " " +
         kMonths[static_cast<unsigned>(date.month()) - 1] + " " +
         std::to_string(static_cast<int>(date.year()));
}

std::string ShortDate(Date date) {
  const auto digits = [](int number, std::size_t count) {
    std::string text = std::to_string(number);
    return std::string(count - text.size(), '0') + text;
  };
  return digits(static_cast<int>(date.year()), 4) + "-" +
         digits(static_cast<int>(static_cast<unsigned>(date.month())), 2) + "-" +
         digits(static_cast<int>(static_cast<unsigned>(date.day())), 2);
}

std::string PeriodText(const Statement& statement) {
  if (!statement.period) return "No transactions";
  return LongDate(statement.period->first) + " to " + LongDate(statement.period->last);
}

// Draws one statement. All measures are points; y grows upwards.
class StatementLayout {
 public:
  StatementLayout(const Statement& statement, const std::string& holder, const PageSize& pageSize,
                  const Typeface& typeface);

  std::shared_ptr<PDFDocument> Draw();

 private:
  // The entries of one page.
  struct PageRange {
    std::size_t first;
    std::size_t end;
  };

  std::shared_ptr<PDFFont> BoldFace(const Typeface& typeface) const;
  TextStyle Style(const std::shared_ptr<PDFFont>& face, float size, std::int32_t color) const;
  void PlaceColumns();
  std::vector<PageRange> Paginate() const;
  std::size_t RowsBelow(float top) const;

  void DrawPage(PageRange range, std::size_t number, std::size_t pageCount);
  void DrawTitleBlock();
  void DrawFigures(float top);
  void DrawRunningHead();
  void DrawBands(float top, std::size_t rowCount);
  void DrawWatermark();
  void DrawTable(float top, PageRange range);
  void DrawTableHead(float top);
  void DrawEntry(float baseline, const Entry& entry);
  void DrawFooter(std::size_t number, std::size_t pageCount);

  void Write(const TextStyle& style, folivar::TextView text, Column column, float baseline,
             PDFHorzTextAlignment alignment = htaLeft);
  void DrawRule(float y, float width, std::int32_t color);

  // Of the account before the entry at `index`.
  Cents BalanceBefore(std::size_t index) const {
    return index == 0 ? statement_.openingBalance : statement_.entries[index - 1].balance;
  }
  // Of all entries before the one at `index`.
  Cents SumBefore(std::size_t index) const {
    return BalanceBefore(index) - statement_.openingBalance;
  }

  const Statement& statement_;
  const std::string& holder_;
  const PageSize& size_;
  const float unit_;  // one point of the design, which is drawn for A4
  std::shared_ptr<PDFDocument> document_;
  std::shared_ptr<PDFFont> regular_;
  std::shared_ptr<PDFFont> bold_;
  std::shared_ptr<PDFPage> page_;  // the one being drawn

  TextStyle title_;
  TextStyle subtitle_;
  TextStyle label_;
  TextStyle figure_;
  TextStyle tableHead_;
  TextStyle body_;
  TextStyle strong_;
  TextStyle small_;
  TextStyle watermark_;

  float margin_;
  float rowHeight_;
  float firstTableTop_;
  float tableTop_;
  float tableBottom_;
  Column content_;  // between the margins
  Column date_;
  Column description_;
  Column amount_;
  Column balance_;
};

StatementLayout::StatementLayout(const Statement& statement, const std::string& holder,
                                 const PageSize& pageSize, const Typeface& typeface)
    : statement_(statement),
      holder_(holder),
      size_(pageSize),
      unit_(pageSize.textScale),
      document_(MakeDocument(typeface)),
      regular_(AddUpright(*document_, typeface, "Helvetica")),
      bold_(BoldFace(typeface)),
      title_(Style(bold_, 22, kInk)),
      subtitle_(Style(regular_, 10, kQuietInk)),
      label_(Style(regular_, 8, kQuietInk)),
      figure_(Style(bold_, 14, kInk)),
      tableHead_(Style(bold_, 8, kAccent)),
      body_(Style(regular_, 9, kInk)),
      strong_(Style(bold_, 9, kInk)),
      small_(Style(regular_, 8, kQuietInk)),
      watermark_(Style(bold_, 100, kWatermark)),
      margin_(54 * unit_),
      rowHeight_(16 * unit_),
      firstTableTop_(size_.height - margin_ - 138 * unit_),
      tableTop_(size_.height - margin_ - 24 * unit_),
      tableBottom_(margin_ + 24 * unit_),
      content_{margin_, size_.width - 2 * margin_} {
  PlaceColumns();

  // Measured at one size, text is as wide as wished at a proportional one.
  const float watermarkWidth = std::hypot(size_.width, size_.height) * 0.55F;
  watermark_.font->SetSize(watermark_.font->Size() * watermarkWidth /
                           watermark_.WidthOf(kWatermarkText));

  const auto preferences = document_->ViewerPreferences();
  preferences->SetPageLayout(folivar::plsOneColumn);
  preferences->SetFitWindow(true);
}

// The styles of a TrueType family are one font that changes, the standard faces fonts of their own.
std::shared_ptr<PDFFont> StatementLayout::BoldFace(const Typeface& typeface) const {
  if (typeface.family.empty()) return document_->Fonts()->Add("Helvetica-Bold");
  auto bold = regular_->Clone();
  bold->SetBold(true);
  return bold;
}

TextStyle StatementLayout::Style(const std::shared_ptr<PDFFont>& face, float size,
                                 std::int32_t color) const {
  auto font = face->Clone();
  font->SetSize(size * unit_);
  return {font, color};
}

// The figures get the room that the widest of them needs in bold, the descriptions what is left.
void StatementLayout::PlaceColumns() {
  const float gap = 18 * unit_;
  const float inset = 6 * unit_;

  float figureWidth = strong_.WidthOf("-99,999.99");
  const auto makeRoomFor = [&](Cents amount) {
    figureWidth = std::max(figureWidth, strong_.WidthOf(FormatCents(amount)));
  };
  makeRoomFor(statement_.openingBalance);
  for (std::size_t i = 0; i < statement_.entries.size(); ++i) {
    makeRoomFor(statement_.entries[i].amount);
    makeRoomFor(SumBefore(i + 1));
    makeRoomFor(BalanceBefore(i + 1));
  }

  date_ = {content_.left + inset, body_.WidthOf("0000-00-00")};
  balance_ = {content_.Right() - inset - figureWidth, figureWidth};
  amount_ = {balance_.left - gap - figureWidth, figureWidth};
  const float descriptionLeft = date_.Right() + gap;
  description_ = {descriptionLeft, amount_.left - gap - descriptionLeft};
}

std::shared_ptr<PDFDocument> StatementLayout::Draw() {
  const std::vector<PageRange> ranges = Paginate();
  for (std::size_t i = 0; i < ranges.size(); ++i) DrawPage(ranges[i], i + 1, ranges.size());
  return document_;
}

// Rows for entries in a table that starts at `top`: without its head and without the two rows that
// take over and hand on the sums.
std::size_t StatementLayout::RowsBelow(float top) const {
  return static_cast<std::size_t>((top - tableBottom_) / rowHeight_) - 3;
}

std::vector<StatementLayout::PageRange> StatementLayout::Paginate() const {
  const std::size_t count = statement_.entries.size();
  std::vector<PageRange> ranges;
  std::size_t first = 0;
  do {
    const std::size_t rows = RowsBelow(ranges.empty() ? firstTableTop_ : tableTop_);
    ranges.push_back({first, std::min(first + rows, count)});
    first = ranges.back().end;
  } while (first < count);
  return ranges;
}

// What is drawn later covers what was drawn before: bands, then the watermark, then text.
void StatementLayout::DrawPage(PageRange range, std::size_t number, std::size_t pageCount) {
  page_ = document_->Pages()->Add();
  page_->SetPageExtents(size_.width, size_.height);
  const float top = number == 1 ? firstTableTop_ : tableTop_;
  DrawBands(top, range.end - range.first);
  DrawWatermark();
  if (number == 1) {
    DrawTitleBlock();
  } else {
    DrawRunningHead();
  }
  DrawTable(top, range);
  DrawFooter(number, pageCount);
}

void StatementLayout::DrawTitleBlock() {
  const float top = size_.height - margin_;
  Write(label_, "Account statement", content_, top - 8 * unit_);
  Write(title_, Shortened(holder_, *title_.font, content_.width), content_, top - 33 * unit_);
  Write(subtitle_, PeriodText(statement_), content_, top - 50 * unit_);
  DrawFigures(top - 68 * unit_);
}

// Four figures side by side between two rules.
void StatementLayout::DrawFigures(float top) {
  const std::array<std::pair<const char*, Cents>, 4> figures = {{
      {"Opening balance", statement_.openingBalance},
      {"Money in", statement_.moneyIn},
      {"Money out", statement_.moneyOut},
      {"Closing balance", statement_.ClosingBalance()},
  }};
  const float gap = 8 * unit_;
  const float width = (content_.width - 3 * gap) / 4;
  float widest = width;
  for (const auto& [label, amount] : figures) {
    widest = std::max(widest, figure_.WidthOf(FormatCents(amount)));
  }
  const TextStyle fitting = {figure_.font->Clone(), figure_.color};
  fitting.font->SetSize(figure_.font->Size() * width / widest);

  DrawRule(top, 1.5F, kAccent);
  Column column = {content_.left, width};
  for (const auto& [label, amount] : figures) {
    Write(label_, label, column, top - 17 * unit_);
    Write(fitting, FormatCents(amount), column, top - 35 * unit_);
    column.left += width + gap;
  }
  DrawRule(top - 46 * unit_, 0.5F, kHairline);
}

void StatementLayout::DrawRunningHead() {
  const float baseline = size_.height - margin_ - 4 * unit_;
  Write(small_, "Account statement", content_, baseline);
  Write(small_, PeriodText(statement_), content_, baseline, htaRight);
}

// Behind every other entry; the row that takes over the sums comes before them.
void StatementLayout::DrawBands(float top, std::size_t rowCount) {
  page_->GraphicsState()->SetFillColor(kBand);
  for (std::size_t row = 0; row < rowCount; row += 2) {
    const float bottom = top - static_cast<float>(row + 3) * rowHeight_;
    page_->DrawRect(content_.left, bottom, content_.width, rowHeight_, folivar::Paint::kFill);
  }
}

// Along the page's diagonal, centred.
void StatementLayout::DrawWatermark() {
  const auto state = page_->GraphicsState();
  const auto& font = watermark_.font;
  const float angle = std::atan2(size_.height, size_.width) * 180 / std::numbers::pi_v<float>;

  state->Push();
  state->SetFillColor(watermark_.color);
  state->Translate(size_.width / 2, size_.height / 2);
  state->Rotate(angle);
  page_->SetFont(font);
  page_->DrawText(kWatermarkText, -font->TextWidth(kWatermarkText) / 2,
                  -font->TextHeight(kWatermarkText) / 2);
  state->Pop();
}

void StatementLayout::DrawTable(float top, PageRange range) {
  DrawTableHead(top);

  // Text stands on a baseline a little above the bottom of its row.
  float baseline = top - 2 * rowHeight_ + 5 * unit_;
  const bool isFirst = range.first == 0;
  Write(strong_, isFirst ? "Opening balance" : "Brought forward", description_, baseline);
  if (!isFirst) Write(strong_, FormatCents(SumBefore(range.first)), amount_, baseline, htaRight);
  Write(strong_, FormatCents(BalanceBefore(range.first)), balance_, baseline, htaRight);

  for (std::size_t i = range.first; i < range.end; ++i) {
    baseline -= rowHeight_;
    DrawEntry(baseline, statement_.entries[i]);
  }

  baseline -= rowHeight_;
  const bool isLast = range.end == statement_.entries.size();
  const float rule = baseline + rowHeight_ - 5 * unit_;
  DrawRule(rule, 0.5F, kAccent);
  Write(strong_, isLast ? "Total and closing balance" : "Carried forward", description_, baseline);
  Write(strong_, FormatCents(SumBefore(range.end)), amount_, baseline, htaRight);
  Write(strong_, FormatCents(BalanceBefore(range.end)), balance_, baseline, htaRight);
  if (isLast) DrawRule(rule - rowHeight_, 1.5F, kAccent);
}

void StatementLayout::DrawTableHead(float top) {
  const float baseline = top - rowHeight_ + 5 * unit_;
  Write(tableHead_, "Date", date_, baseline);
  Write(tableHead_, "Description", description_, baseline);
  Write(tableHead_, "Amount", amount_, baseline, htaRight);
  Write(tableHead_, "Balance", balance_, baseline, htaRight);
  DrawRule(top - rowHeight_, 0.5F, kAccent);
}

void StatementLayout::DrawEntry(float baseline, const Entry& entry) {
  Write(body_, ShortDate(entry.date), date_, baseline);
  Write(body_, Shortened(entry.description, *body_.font, description_.width), description_,
        baseline);
  Write(body_, FormatCents(entry.amount), amount_, baseline, htaRight);
  Write(body_, FormatCents(entry.balance), balance_, baseline, htaRight);
}

void StatementLayout::DrawFooter(std::size_t number, std::size_t pageCount) {
  const std::string place = std::to_string(number) + " of " + std::to_string(pageCount);
  const float room = content_.width - small_.WidthOf(place) - 18 * unit_;
  Write(small_, Shortened(holder_, *small_.font, room), content_, margin_);
  Write(small_, place, content_, margin_, htaRight);
}

void StatementLayout::Write(const TextStyle& style, folivar::TextView text, Column column,
                            float baseline, PDFHorzTextAlignment alignment) {
  page_->SetFont(style.font);
  page_->GraphicsState()->SetFillColor(style.color);
  page_->DrawTextAligned(text, column.left, baseline, column.width, 0, alignment);
}

void StatementLayout::DrawRule(float y, float width, std::int32_t color) {
  const auto state = page_->GraphicsState();
  state->SetLineWidth(width * unit_);
  state->SetStrokeColor(color);
  page_->DrawLine(content_.left, y, content_.Right(), y);
}

}  // namespace

std::shared_ptr<PDFDocument> LayOutStatement(const Statement& statement, const std::string& holder,
                                             const PageSize& pageSize, const Typeface& typeface) {
  return StatementLayout(statement, holder, pageSize, typeface).Draw();
}
