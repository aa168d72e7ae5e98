#include "Book.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "BookStyle.h"
#include "Contents.h"
#include "LaidBlock.h"
#include "PagePen.h"
#include "TitlePage.h"
#include "common/FittedText.h"

using folivar::PDFDocument;
using folivar::PDFPage;
using folivar::PDFTemplate;

namespace {

constexpr float kChapterSink = 82;         // from the top of the text to that of a chapter's title
constexpr float kChapterNumberDepth = 58;  // from the top of the text to its number's baseline
constexpr float kChapterRuleDepth = 10;    // from the title's last line to the rule below
constexpr float kAboveTarget = 6;          // what a reader shows above a heading
constexpr float kCodeMargin = 5;           // of the paper beneath code, to both sides
constexpr float kBullet = 2.4F;

// Where a heading has come to stand.
struct Place {
  std::shared_ptr<PDFPage> page;
  std::size_t number;
  float top;
};

struct Link {
  std::shared_ptr<PDFPage> page;
  Box box;
  std::size_t heading;
};

class Book {
 public:
  Book(PDFDocument& document, const Manual& manual, const Typeface& typeface)
      : document_(document), manual_(manual), style_(document, typeface) {}

  // The contents are written last, when the places of the headings are known; how many pages they
  // take is known before.
  void LayOut() {
    PagePen title(AddPage());
    DrawTitlePage(title, style_, manual_);
    const auto contents = PlanContents(manual_.headings);
    std::vector<PagePen> contentsPens;
    headText_ = "Contents";
    for (std::size_t i = 0; i < contents.size(); ++i) {
      if (i == 0) {
        AddTextPage();
      } else {
        ContinueOnNextPage();
      }
      contentsPens.push_back(*pen_);
    }
    FillPages(LayOutBlocks(manual_, style_));
    for (std::size_t i = 0; i < contents.size(); ++i) WriteContents(contentsPens[i], contents[i]);
    AddLinks();
    AddBookmarks();
    document_.ViewerPreferences()->SetPageMode(folivar::pmsUseOutlines);
  }

 private:
  std::shared_ptr<PDFPage> AddPage() {
    auto page = document_.Pages()->Add();
    page->SetPageExtents(kPage.width, kPage.height);
    ++pageCount_;
    return page;
  }

  // A page of text, with its number at the foot.
  void AddTextPage() {
    pen_.emplace(AddPage());
    pen_->WriteCentred(style_.pageNumber, std::to_string(pageCount_), kCenter, kFootBaseline);
    top_ = kText.Top();
    isPageEmpty_ = true;
  }

  // One that does not begin a chapter has the running head.
  void ContinueOnNextPage() {
    AddTextPage();
    if (!head_) head_ = MakeHead();
    pen_->Page()->DrawTemplate(head_);
  }

  // What the pages of a chapter have in common, in the file once.
  std::shared_ptr<PDFTemplate> MakeHead() const {
    constexpr float kHalf = kText.width / 2 - 10;
    auto head = document_.Templates()->Add();
    head->SetAutoSizeClipBox(false);
    head->SetClipBox(0, 0, kPage.width, kPage.height);
    Write(*head, style_.head, Shortened(headText_, *style_.head.font, kHalf), kText.left,
          kHeadBaseline);
    Write(*head, style_.head, Shortened(manual_.title, *style_.head.font, kHalf), kRight,
          kHeadBaseline, folivar::htaRight);
    head->GraphicsState()->SetLineWidth(0.5F);
    head->GraphicsState()->SetStrokeColor(kHairline);
    head->DrawLine(kText.left, kHeadRule, kRight, kHeadRule);
    return head;
  }

  void FillPages(const std::vector<LaidBlock>& blocks) {
    places_.resize(manual_.headings.size());
    const LaidBlock* previous = nullptr;
    for (auto block = blocks.begin(); block != blocks.end(); ++block) {
      if (block->heading && manual_.headings[*block->heading].level == 1) {
        BeginChapter(*block);
      } else {
        const float gap = std::max(block->above, previous->below);
        if (!isPageEmpty_ && top_ - gap - RoomNeeded(block, blocks.end()) < kText.bottom) {
          ContinueOnNextPage();
        }
        if (!isPageEmpty_) top_ -= gap;
        if (block->heading) SetPlace(*block->heading);
        WriteLines(*block);
      }
      previous = &*block;
    }
  }

  // From the first line to where the page may break: behind a block that stays with the next one
  // stands some of that. What no page has room for need not stay together.
  static float RoomNeeded(std::vector<LaidBlock>::const_iterator block,
                          std::vector<LaidBlock>::const_iterator end) {
    const float alone = block->HeightOf(block->leastLines);
    float room = 0;
    for (; block->staysWithNext && block + 1 != end && room < kText.height; ++block) {
      room += block->HeightOf(block->lines.size()) + std::max(block->below, (block + 1)->above);
    }
    room += block->HeightOf(block->leastLines);
    return room <= kText.height ? room : alone;
  }

  void SetPlace(std::size_t heading) {
    places_[heading] = {pen_->Page(), pageCount_, top_ + kAboveTarget};
  }

  void BeginChapter(const LaidBlock& title) {
    const Heading& chapter = manual_.headings[*title.heading];
    headText_ = chapter.number + "  " + chapter.title;
    head_ = nullptr;
    AddTextPage();
    SetPlace(*title.heading);
    pen_->WriteText(style_.chapterNumber, chapter.number, kText.left, top_ - kChapterNumberDepth);
    top_ -= kChapterSink;
    isPageEmpty_ = false;
    WriteLines(title);
    pen_->FillBox({kText.left, top_ - kChapterRuleDepth, kText.width, 0.8F}, kTeal);
  }

  void WriteLines(const LaidBlock& block) {
    for (std::size_t first = 0; first < block.lines.size();) {
      const std::size_t count = LinesThatFit(block, first);
      if (count > 0) WriteLines(block, first, count);
      first += count;
      if (first < block.lines.size()) ContinueOnNextPage();
    }
  }

  // None if the rest is better begun on the next page.
  std::size_t LinesThatFit(const LaidBlock& block, std::size_t first) const {
    const std::size_t rest = block.lines.size() - first;
    const float room = top_ - kText.bottom - 2 * block.padding;
    std::size_t count = room > 0 ? static_cast<std::size_t>(room / block.leading) : 0;
    if (count >= rest) return rest;
    constexpr std::size_t kLeastCarriedOver = 2;
    if (rest - count < kLeastCarriedOver && count > 0) --count;
    if (isPageEmpty_) return std::max<std::size_t>(count, 1);
    return count < block.leastLines ? 0 : count;
  }

  void WriteLines(const LaidBlock& block, std::size_t first, std::size_t count) {
    const float height = block.HeightOf(count);
    if (block.kind == BlockKind::kCode) {
      pen_->FillBox(
          {kText.left - kCodeMargin, top_ - height, kText.width + 2 * kCodeMargin, height},
          kCodePaper);
    }
    float baseline = top_ - block.padding - block.Ascent();
    const float left = kText.left + block.indent;
    if (block.kind == BlockKind::kItem && first == 0) {
      pen_->FillBox({left - 9, baseline + 2.2F, kBullet, kBullet}, kTeal);
    }
    for (std::size_t i = first; i < first + count; ++i) {
      for (const Piece& piece : block.lines[i]) WritePiece(piece, left + piece.left, baseline);
      baseline -= block.leading;
    }
    top_ -= height;
    isPageEmpty_ = false;
  }

  void WritePiece(const Piece& piece, float left, float baseline) {
    if (piece.text.empty()) return;
    pen_->WriteText(*piece.style, piece.text, left, baseline);
    if (!piece.target) return;
    const float depth = piece.style->font->Size() * 0.3F;
    links_.push_back({pen_->Page(),
                      {left, baseline - depth, piece.width, piece.style->font->Size() * 1.2F},
                      *piece.target});
  }

  void WriteContents(PagePen& pen, const std::vector<ContentsLine>& lines) {
    if (lines.front().heading == 0) WriteContentsTitle(pen, style_);
    for (const ContentsLine& line : lines) {
      const Box box = WriteContentsLine(pen, style_, line, manual_.headings[line.heading],
                                        std::to_string(places_[line.heading].number));
      links_.push_back({pen.Page(), box, line.heading});
    }
  }

  void LeadTo(folivar::PDFLinkDestination& destination, std::size_t heading) const {
    destination.SetPage(places_[heading].page);
    destination.SetTop(places_[heading].top);
  }

  void AddLinks() const {
    for (const Link& link : links_) {
      const auto added = link.page->HyperLinks()->Add();
      added->SetRegion(link.box.left, link.box.bottom, link.box.width, link.box.height);
      added->SetBorderWidth(0);
      LeadTo(*added->Destination(), link.heading);
    }
  }

  // Chapters are open, sections closed.
  void AddBookmarks() const {
    std::array<std::shared_ptr<folivar::PDFBookmark>, 3> open;
    for (std::size_t index = 0; index < manual_.headings.size(); ++index) {
      const Heading& heading = manual_.headings[index];
      const auto level = static_cast<std::size_t>(heading.level) - 1;
      const auto siblings = level == 0 ? document_.Bookmarks() : open[level - 1]->SubBookmarks();
      open[level] = siblings->Add();
      open[level]->SetTitle(folivar::EscapeTitle(heading.number + "  " + heading.title));
      open[level]->SetExpanded(level == 0);
      LeadTo(*open[level]->Destination(), index);
    }
  }

  PDFDocument& document_;
  const Manual& manual_;
  BookStyle style_;
  std::size_t pageCount_ = 0;
  std::vector<Place> places_;  // of the headings
  std::vector<Link> links_;

  // While pages are filled:
  std::optional<PagePen> pen_;
  float top_ = 0;  // of what is free of the page
  bool isPageEmpty_ = true;
  std::string headText_;
  std::shared_ptr<PDFTemplate> head_;  // of the chapter, once a page needs it
};

}  // namespace

void LayOutBook(PDFDocument& document, const Manual& manual, const Typeface& typeface) {
  Book(document, manual, typeface).LayOut();
}
