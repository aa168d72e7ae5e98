#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <numeric>
#include <tuple>

#include "folivar/base/Error.h"
#include "folivar/folivar.h"
#include "tests/support/BmpFile.h"
#include "tests/support/Content.h"
#include "tests/support/SavedDocument.h"

// Runs under the address sanitizer, which tells when freed memory is touched or anything leaks.

namespace folivar::test {
namespace {

// Of an owner that is asked for.
constexpr int kGone = Error::kObjectNotSet;

// Everything that a host can hold of a document. Its parts are let go of one at a time; after each
// release what is left is used.
class Held {
 public:
  Held()
      : document_(PDFDocument::Create()),
        pages_(document_->Pages()),
        fonts_(document_->Fonts()),
        preferences_(document_->ViewerPreferences()),
        page_(pages_->Add("page")),
        font_(fonts_->Add("Courier")),
        state_(page_->GraphicsState()) {
    page_->SetFont(font_);
  }

  auto Parts() { return std::tie(document_, pages_, fonts_, preferences_, page_, font_, state_); }

  void UseWhatIsLeft() const {
    if (pages_) {
      pages_->Add()->DrawText("more", 0, 0);
      pages_->Remove(pages_->count());
      EXPECT_EQ(pages_->Item("page")->Key(), "page");
      for (const auto& page : *pages_) page->DrawLine(0, 0, 1, 1);
    }
    if (fonts_) {
      EXPECT_GT(fonts_->Add("Times-Roman")->TextWidth("x"), 0);
      EXPECT_EQ(fonts_->count(fontType1), 3);
    }
    if (preferences_) {
      preferences_->SetHideToolbar(true);
      EXPECT_EQ(ErrorNumberOf([&] { preferences_->PageMode(); }), document_ ? 0 : kGone);
    }
    if (page_) {
      page_->DrawText("text", 1, 2);
      page_->SetFont(page_->Font()->Clone());
      EXPECT_EQ(ErrorNumberOf([&] { page_->ParentDocument(); }), document_ ? 0 : kGone);
    }
    if (font_) {
      EXPECT_FLOAT_EQ(font_->TextWidth("mm"), 12);
    }
    if (state_) {
      state_->Push();
      state_->SetFillColor(1);
      state_->Pop();
    }
  }

 private:
  std::shared_ptr<PDFDocument> document_;
  std::shared_ptr<PDFPages> pages_;
  std::shared_ptr<PDFFonts> fonts_;
  std::shared_ptr<PDFViewerPreferences> preferences_;
  std::shared_ptr<PDFPage> page_;
  std::shared_ptr<PDFFont> font_;
  std::shared_ptr<PDFGraphicsState> state_;
};

// The same of a template and of a page that shows it.
class HeldWithTemplate {
 public:
  HeldWithTemplate()
      : document_(PDFDocument::Create()),
        templates_(document_->Templates()),
        page_(document_->Pages()->Add()),
        drawn_(templates_->Add("drawn")),
        font_(document_->Fonts()->Add("Courier")),
        state_(drawn_->GraphicsState()) {
    drawn_->SetFont(font_);
    page_->DrawTemplate(drawn_);
  }

  auto Parts() { return std::tie(document_, templates_, page_, drawn_, font_, state_); }

  void UseWhatIsLeft() const {
    if (templates_) {
      const auto added = templates_->Add();
      added->DrawText("more", 0, 0);
      if (page_) page_->DrawTemplate(added, 1, 2);
      EXPECT_EQ(templates_->Item("drawn")->Key(), "drawn");
      for (const auto& each : *templates_) each->DrawLine(0, 0, 1, 1);
    }
    if (page_) {
      page_->DrawText("text", 1, 2);
      const auto other = PDFDocument::Create()->Templates()->Add();
      EXPECT_EQ(ErrorNumberOf([&] { page_->DrawTemplate(other); }), Error::kInvalidArgument);
    }
    if (drawn_) {
      drawn_->DrawText("text", 1, 2);
      drawn_->SetFont(drawn_->Font()->Clone());
      if (page_) page_->DrawTemplate(drawn_, 3, 4);
    }
    if (font_) {
      EXPECT_FLOAT_EQ(font_->TextWidth("mm"), 12);
    }
    if (state_) {
      state_->Push();
      state_->SetFillColor(1);
      state_->Pop();
    }
  }

 private:
  std::shared_ptr<PDFDocument> document_;
  std::shared_ptr<PDFTemplates> templates_;
  std::shared_ptr<PDFPage> page_;
  std::shared_ptr<PDFTemplate> drawn_;
  std::shared_ptr<PDFFont> font_;
  std::shared_ptr<PDFGraphicsState> state_;
};

// The same of a text box and what it is made of.
class HeldWithTextBox {
 public:
  HeldWithTextBox()
      : document_(PDFDocument::Create()),
        page_(document_->Pages()->Add()),
        boxes_(page_->TextBoxes()),
        box_(boxes_->Add("box")),
        font_(document_->Fonts()->Add("Courier")),
        state_(box_->GraphicsState()) {
    box_->SetText("0123456789");
    box_->SetSelLength(-5);
    box_->SetSelFont(font_);
  }

  auto Parts() { return std::tie(document_, page_, boxes_, box_, font_, state_); }

  void UseWhatIsLeft() const {
    if (boxes_) {
      const auto added = boxes_->Add();
      added->Copy(boxes_->Item("box"));
      added->AutoSizeNow();
      boxes_->Remove(boxes_->count());
    }
    if (box_) {
      box_->SetSelStart(2);
      box_->SetSelText("more");
      box_->SetSelFont(box_->SelFont()->Clone());
      EXPECT_EQ(ErrorNumberOf([&] { box_->Parent(); }), document_ || page_ ? 0 : kGone);
    }
    if (page_) page_->TextBoxes()->Item("box")->SetSelUnderline(true);
    if (font_) font_->SetSize(20);
    if (state_) state_->SetFillColor(1);
    if (document_) Save(*document_, "held.pdf", Check::kForm);
  }

 private:
  std::shared_ptr<PDFDocument> document_;
  std::shared_ptr<PDFPage> page_;
  std::shared_ptr<PDFTextBoxes> boxes_;
  std::shared_ptr<PDFTextBox> box_;
  std::shared_ptr<PDFFont> font_;
  std::shared_ptr<PDFGraphicsState> state_;
};

// The same of a bookmark and a link that lead to a page.
class HeldWithNavigation {
 public:
  HeldWithNavigation()
      : document_(PDFDocument::Create()),
        page_(document_->Pages()->Add()),
        bookmarks_(document_->Bookmarks()),
        below_(bookmarks_->Add("top")->SubBookmarks()->Add()),
        links_(page_->HyperLinks()),
        destination_(links_->Add("link")->Destination()) {
    below_->Destination()->SetPage(page_);
    destination_->SetPage(page_);
  }

  auto Parts() { return std::tie(document_, page_, bookmarks_, below_, links_, destination_); }

  void UseWhatIsLeft() const {
    const bool hasPage = document_ || page_;
    if (below_) {
      EXPECT_EQ(below_->Destination()->Page() != nullptr, hasPage);
      below_->SubBookmarks()->Add()->Destination()->SetPage(page_);
    }
    if (destination_) {
      EXPECT_EQ(destination_->Page() != nullptr, hasPage);
      if (page_) destination_->SetPage(page_);
    }
    if (bookmarks_) bookmarks_->Add()->SetTitle("more");
    if (links_) links_->Add()->Destination()->SetPage(page_);
    if (document_) Save(*document_, "held.pdf", Check::kForm);
  }

 private:
  std::shared_ptr<PDFDocument> document_;
  std::shared_ptr<PDFPage> page_;
  std::shared_ptr<PDFBookmarks> bookmarks_;
  std::shared_ptr<PDFBookmark> below_;
  std::shared_ptr<PDFHyperLinks> links_;
  std::shared_ptr<PDFLinkDestination> destination_;
};

template <class Parts>
void Release(Parts parts, std::size_t which) {
  std::size_t number = 0;
  const auto releaseOne = [&](auto& part) {
    if (number++ == which) part.reset();
  };
  std::apply([&](auto&... part) { (releaseOne(part), ...); }, parts);
}

// Returns the number of orders.
template <class Held>
int ReleaseInEveryOrder() {
  constexpr std::size_t kCount = std::tuple_size_v<decltype(Held().Parts())>;
  std::array<std::size_t, kCount> order{};
  std::iota(order.begin(), order.end(), std::size_t{0});
  int orders = 0;
  do {
    Held held;
    for (const std::size_t which : order) {
      Release(held.Parts(), which);
      held.UseWhatIsLeft();
    }
    ++orders;
  } while (std::next_permutation(order.begin(), order.end()));
  return orders;
}

TEST(Lifetime, EveryOrderOfReleaseIsSafe) { EXPECT_EQ(ReleaseInEveryOrder<Held>(), 5040); }

TEST(Lifetime, EveryOrderOfReleaseOfATemplateIsSafe) {
  EXPECT_EQ(ReleaseInEveryOrder<HeldWithTemplate>(), 720);
}

TEST(Lifetime, EveryOrderOfReleaseOfATextBoxIsSafe) {
  EXPECT_EQ(ReleaseInEveryOrder<HeldWithTextBox>(), 720);
}

TEST(Lifetime, EveryOrderOfReleaseOfNavigationIsSafe) {
  EXPECT_EQ(ReleaseInEveryOrder<HeldWithNavigation>(), 720);
}

TEST(Lifetime, NothingKeepsADocumentAlive) {
  auto document = PDFDocument::Create();
  const std::weak_ptr<PDFDocument> watch = document;
  const auto page = document->Pages()->Add();
  const auto font = page->Font();
  document.reset();
  EXPECT_TRUE(watch.expired());
  page->DrawText("still here", 0, 0);
}

TEST(Lifetime, ImagesAndPagesThatShowThemMayOutliveEachOther) {
  auto document = PDFDocument::Create();
  auto images = document->Images();
  auto image = images->Add("picture");
  auto page = document->Pages()->Add();
  image->SetFileName(WriteBlankBmp("blank.bmp", 4, 3).u8string());
  document.reset();
  page->DrawImage(image, 0, 0);
  page->SetThumbnail(image);
  page->DrawImage(images->Add(), 0, 0, 1, 1, AspectRatio::kStretch);
  images.reset();
  page->DrawImage(image, 10, 10);
  const std::weak_ptr<PDFImage> watch = image;
  image.reset();
  EXPECT_EQ(page->Thumbnail()->Width(), 4);
  page.reset();
  EXPECT_TRUE(watch.expired());
}

TEST(Lifetime, TemplateKeepsNothingAlive) {
  auto document = PDFDocument::Create();
  const std::weak_ptr<PDFDocument> watch = document;
  auto drawn = document->Templates()->Add();
  const std::weak_ptr<PDFTemplate> watchTemplate = drawn;
  document->Pages()->Add()->DrawTemplate(drawn);
  document.reset();
  EXPECT_TRUE(watch.expired());
  drawn->DrawText("still here", 0, 0);
  drawn.reset();
  EXPECT_TRUE(watchTemplate.expired());
}

TEST(Lifetime, LoopOverPagesMayRemoveThem) {
  const auto document = PDFDocument::Create();
  const auto pages = document->Pages();
  for (int i = 0; i < 5; ++i) pages->Add();
  int seen = 0;
  for (const auto& page : *pages) {
    EXPECT_EQ(page->Width(), 612);
    pages->Remove(1);
    if (seen == 0) pages->Add("late");
    ++seen;
  }
  EXPECT_EQ(seen, 5);
  EXPECT_EQ(pages->count(), 1);
  EXPECT_TRUE(pages->KeyExists("late"));
}

}  // namespace
}  // namespace folivar::test
