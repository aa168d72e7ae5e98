#include "Letter.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <string_view>
#include <utility>

#include "common/InputError.h"

namespace {

using folivar::PDFDocument;
using folivar::PDFFont;
using folivar::PDFPage;
using folivar::PDFTextBox;
using folivar::Rgb;

// A4; points.
constexpr float kPageWidth = 595.276F;
constexpr float kPageHeight = 841.89F;
constexpr float kLeft = 85;
constexpr float kTop = 770;
constexpr float kWidth = 425;
constexpr float kHeight = 680;
constexpr float kFooter = 50;

constexpr float kTextSize = 11;
constexpr float kHeadingSize = 14;
constexpr float kGapSize = 7;
constexpr std::int32_t kHeadingColor = Rgb(31, 78, 95);

const std::string& TextOfColumn(const Span& span, const Block& block, const std::string& path,
                                const std::vector<std::string>& columns,
                                const std::vector<std::string>& record) {
  const auto found = std::find(columns.begin(), columns.end(), span.text);
  if (found == columns.end()) {
    throw InputError(path, block.line, "the recipients have no column '" + span.text + "'");
  }
  return record[static_cast<std::size_t>(found - columns.begin())];
}

// Whether a page may end behind a piece. Headings stay with what they are above.
bool MayEndPage(std::span<const Piece> pieces, std::size_t index) {
  if (index + 1 == pieces.size()) return true;
  const Piece& piece = pieces[index];
  if (piece.isHeading || (piece.isGap && pieces[index - 1].isHeading)) return false;
  return piece.text.ends_with(' ') || piece.text.ends_with('\n');
}

bool HaveSameFormat(const Piece& a, const Piece& b) {
  return a.isBold == b.isBold && a.isItalic == b.isItalic && a.isHeading == b.isHeading &&
         a.isGap == b.isGap;
}

std::string_view StandardFaceOf(const Piece& piece) {
  if (piece.isHeading) return "Helvetica-Bold";
  if (piece.isBold) return piece.isItalic ? "Times-BoldItalic" : "Times-Bold";
  return piece.isItalic ? "Times-Italic" : "Times-Roman";
}

float SizeOf(const Piece& piece) {
  if (piece.isHeading) return kHeadingSize;
  return piece.isGap ? kGapSize : kTextSize;
}

class LetterLayout {
 public:
  LetterLayout(std::span<const Piece> pieces, const Typeface& typeface)
      : pieces_(pieces), typeface_(typeface), document_(MakeDocument(typeface)) {
    for (std::size_t index = 0; index < pieces.size(); ++index) {
      if (MayEndPage(pieces, index)) ends_.push_back(index + 1);
    }
  }

  std::shared_ptr<PDFDocument> LayOut() {
    do {
      AddPage();
    } while (start_ < pieces_.size());
    NumberPages();
    return document_;
  }

 private:
  void AddPage() {
    while (start_ < pieces_.size() && pieces_[start_].isGap) ++start_;
    const auto page = document_->Pages()->Add();
    page->SetPageExtents(kPageWidth, kPageHeight);
    const std::size_t end = FindPageEnd(*page);
    AddBox(*page, pieces_.subspan(start_, end - start_));
    start_ = end;
  }

  // How far the pieces fill the page: found by doubling and then by halving, with boxes that size
  // themselves and are taken out again. A page takes what is up to the first place where it may
  // end, even if that is too high.
  std::size_t FindPageEnd(PDFPage& page) {
    const auto first = std::upper_bound(ends_.begin(), ends_.end(), start_);
    if (first == ends_.end()) return pieces_.size();
    const auto fits = [&](std::size_t end) {
      const auto box = AddBox(page, pieces_.subspan(start_, end - start_));
      box->AutoSizeNow();
      page.TextBoxes()->Remove(page.TextBoxes()->count());
      return box->Height() <= kHeight;
    };
    const auto most = static_cast<std::size_t>(ends_.end() - first);
    std::size_t step = 64;
    while (step < most && fits(first[static_cast<std::ptrdiff_t>(step)])) step *= 2;
    const auto last = first + static_cast<std::ptrdiff_t>(std::min(step, most));
    return *(std::partition_point(first + 1, last, fits) - 1);
  }

  std::shared_ptr<PDFTextBox> AddBox(PDFPage& page, std::span<const Piece> pieces) {
    auto box = page.TextBoxes()->Add();
    box->SetMargins(0, 0, 0, 0);
    box->Move(kLeft, kTop, kWidth, kHeight);
    box->SetBorderWidth(0);
    std::string text;
    for (const Piece& piece : pieces) text += piece.text;
    box->SetText(text);
    Format(*box, pieces);
    return box;
  }

  void Format(PDFTextBox& box, std::span<const Piece> pieces) {
    std::int32_t start = 0;
    for (std::size_t first = 0, next = 0; first < pieces.size(); first = next) {
      std::string text;
      while (next < pieces.size() && HaveSameFormat(pieces[first], pieces[next])) {
        text += pieces[next++].text;
      }
      // Positions count UTF-16 units.
      const auto length = static_cast<std::int32_t>(folivar::Text(text).Utf16().size());
      box.SetSelStart(start);
      box.SetSelLength(length);
      box.SetSelFont(FontOf(pieces[first]));
      if (pieces[first].isHeading) box.SetSelColor(kHeadingColor);
      start += length;
    }
    start = 0;
    for (const Piece& piece : pieces) {
      const auto length = static_cast<std::int32_t>(folivar::Text(piece.text).Utf16().size());
      if (piece.isCentred && length > 1) {
        box.SetSelStart(start);
        box.SetSelLength(length - 1);
        box.SetSelAlignment(folivar::alignCenter);
      }
      start += length;
    }
  }

  std::shared_ptr<PDFFont> FontOf(const Piece& piece) {
    auto& font = fonts_[{StandardFaceOf(piece), SizeOf(piece)}];
    if (!font) {
      font = AddUpright(*document_, typeface_, StandardFaceOf(piece));
      font->SetSize(SizeOf(piece));
      // Every style of the standard faces is a face of its own, which this leaves as it is.
      if (piece.isBold || piece.isHeading) font->SetBold(true);
      if (piece.isItalic && !piece.isHeading) font->SetItalic(true);
    }
    return font;
  }

  void NumberPages() {
    const auto pages = document_->Pages();
    if (pages->count() < 2) return;
    const auto font = AddUpright(*document_, typeface_, "Helvetica");
    int number = 0;
    for (const auto& page : *pages) {
      page->SetFont(font);
      page->DrawTextAligned(
          "Page " + std::to_string(++number) + " of " + std::to_string(pages->count()), kLeft,
          kFooter, kWidth, 0, folivar::htaCenter);
    }
  }

  std::span<const Piece> pieces_;
  const Typeface& typeface_;
  std::vector<std::size_t> ends_;  // where a page may end
  std::size_t start_ = 0;          // of the next page
  std::shared_ptr<PDFDocument> document_;
  std::map<std::pair<std::string_view, float>, std::shared_ptr<PDFFont>> fonts_;
};

// Adds the pieces of a text that follows other text of its block.
void AddPieces(std::vector<Piece>& pieces, const Piece& format, std::string_view text) {
  while (!text.empty()) {
    const std::size_t end = text.find_first_of(" \n");
    const std::size_t size = end == std::string_view::npos ? text.size() : end + 1;
    pieces.push_back(format);
    pieces.back().text = text.substr(0, size);
    text.remove_prefix(size);
  }
}

}  // namespace

std::vector<Piece> PiecesFor(const std::vector<Block>& blocks, const std::string& path,
                             const std::vector<std::string>& columns,
                             const std::vector<std::string>& record) {
  std::vector<Piece> pieces;
  for (const Block& block : blocks) {
    if (!pieces.empty()) {
      Piece gap;
      gap.text = "\n";
      gap.isGap = true;
      pieces.push_back(gap);
    }
    Piece format;
    format.isHeading = block.isHeading;
    format.isCentred = block.isCentred;
    for (const Span& span : block.spans) {
      format.isBold = span.isBold;
      format.isItalic = span.isItalic;
      AddPieces(pieces, format,
                span.isColumn ? TextOfColumn(span, block, path, columns, record) : span.text);
    }
    AddPieces(pieces, format, "\n");
  }
  return pieces;
}

std::shared_ptr<PDFDocument> LayOutLetter(const std::vector<Piece>& pieces,
                                          const Typeface& typeface) {
  return LetterLayout(pieces, typeface).LayOut();
}
