#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <numeric>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "folivar/folivar.h"
#include "tests/support/BmpFile.h"
#include "tests/support/SavedDocument.h"

namespace folivar::test {
namespace {

std::size_t CountOf(std::string_view bytes, std::string_view part) {
  std::size_t count = 0;
  for (std::size_t at = bytes.find(part); at != std::string_view::npos;
       at = bytes.find(part, at + part.size())) {
    ++count;
  }
  return count;
}

// Pages that bookmarks at two levels and links of every page lead to, each with a thumbnail.
class LinkedPages {
 public:
  static constexpr std::size_t kCount = 4;

  LinkedPages() {
    const auto image = document_->Images()->Add();
    image->SetFileName(WriteBlankBmp("thumbnail.bmp", 4, 3).u8string());
    for (std::size_t i = 0; i < kCount; ++i) {
      pages_.push_back(document_->Pages()->Add());
      pages_.back()->SetThumbnail(image);
    }
    for (std::size_t i = 0; i < kCount; ++i) {
      const auto top = document_->Bookmarks()->Add();
      Lead(top->Destination(), i);
      Lead(top->SubBookmarks()->Add()->Destination(), (i + 1) % kCount);
      for (const auto& page : pages_) Lead(page->HyperLinks()->Add()->Destination(), i);
    }
  }

  void Remove(std::size_t page) {
    const auto& pages = *document_->Pages();
    for (std::int32_t place = 1; place <= pages.count(); ++place) {
      if (pages.Item(place) == pages_[page]) {
        document_->Pages()->Remove(place);
        break;
      }
    }
    isThere_[page] = false;
  }

  // Lets go of a page, which ends if it is removed.
  void Release(std::size_t page) { pages_[page].reset(); }

  void Check() {
    for (std::size_t i = 0; i < destinations_.size(); ++i) {
      const std::size_t target = targets_[i];
      if (isThere_[target]) {
        ASSERT_EQ(destinations_[i]->Page(), pages_[target]);
      } else {
        ASSERT_EQ(destinations_[i]->Page(), nullptr);
      }
    }
    const auto left = static_cast<std::size_t>(std::count(isThere_.begin(), isThere_.end(), true));
    const SavedDocument saved = Save(*document_, "removal.pdf", folivar::test::Check::kForm);
    EXPECT_EQ(CountOf(saved.bytes, "/Type /Page\n"), left);
    EXPECT_EQ(CountOf(saved.bytes, "/Thumb "), left);
    EXPECT_EQ(CountOf(saved.bytes, "/Title"), 2 * kCount) << "bookmarks stay";
    EXPECT_EQ(CountOf(saved.bytes, "/Subtype /Link\n"), left * kCount)
        << "links go with their page";
    EXPECT_EQ(CountOf(saved.bytes, "/Dest "), 2 * left + left * left);
  }

 private:
  void Lead(std::shared_ptr<PDFLinkDestination> destination, std::size_t page) {
    destination->SetPage(pages_[page]);
    destinations_.push_back(std::move(destination));
    targets_.push_back(page);
  }

  std::shared_ptr<PDFDocument> document_ = PDFDocument::Create();
  std::vector<std::shared_ptr<PDFPage>> pages_;
  std::array<bool, kCount> isThere_ = {true, true, true, true};
  std::vector<std::shared_ptr<PDFLinkDestination>> destinations_;
  std::vector<std::size_t> targets_;
};

TEST(PageRemoval, InEveryOrderClearsWhatLeadsThereAndNothingElse) {
  std::array<std::size_t, LinkedPages::kCount> order{};
  std::iota(order.begin(), order.end(), std::size_t{0});
  int orders = 0;
  do {
    LinkedPages linked;
    ASSERT_NO_FATAL_FAILURE(linked.Check());
    for (const std::size_t page : order) {
      linked.Remove(page);
      ASSERT_NO_FATAL_FAILURE(linked.Check());
      if (orders % 2 == 0) linked.Release(page);
    }
    ++orders;
  } while (std::next_permutation(order.begin(), order.end()));
  EXPECT_EQ(orders, 24);
}

}  // namespace
}  // namespace folivar::test
