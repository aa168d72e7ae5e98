#pragma once

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "folivar/file/ObjectWriter.h"
#include "folivar/navigation/OutlinePlace.h"

namespace folivar {

class PDFBookmark;
class PDFBookmarks;
class PDFPages;

// The root of the document's outline, which numbers and writes all bookmarks: each, then those
// below it, then the next. It is written even when there is nothing below it.
class PDFOutline final : public ObjectWriter {
 public:
  // Destinations lead to `pages`.
  explicit PDFOutline(std::weak_ptr<PDFPages> pages) : pages_(std::move(pages)) {}

  // As numbered by the save in progress.
  std::int32_t ObjectNumber() const { return objectNumber_; }

  // The top level. Made on first use; the same object each time.
  const std::shared_ptr<PDFBookmarks>& Bookmarks();

  void NumberObjects(ObjectNumbers& numbers) override;
  void WriteObjects(SaveFile& file) override;

 private:
  struct Numbered {
    const PDFBookmark* bookmark = nullptr;  // null for the root
    OutlinePlace place{};
    bool expanded = false;
  };

  Numbered& At(std::int32_t number) {
    return numbered_[static_cast<std::size_t>(number - objectNumber_)];
  }

  std::weak_ptr<PDFPages> pages_;
  std::shared_ptr<PDFBookmarks> bookmarks_;
  std::int32_t objectNumber_ = 0;
  // Between numbering and writing, when no host is called that could change the outline: the root
  // and all bookmarks, in the order of their numbers.
  std::vector<Numbered> numbered_;
};

}  // namespace folivar
