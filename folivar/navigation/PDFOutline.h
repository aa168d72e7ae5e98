#pragma once

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "folivar/file/Reference.h"
#include "folivar/navigation/OutlinePlace.h"

namespace folivar {

class Internal;
class ObjectNumbers;
class PDFBookmark;
class PDFBookmarks;
class PDFPages;
class SaveFile;

// The root of the document's outline, which numbers and writes all bookmarks: each, then those
// below it, then the next. It is written even when there is nothing below it.
class PDFOutline final {
 public:
  // Destinations lead to `pages`.
  explicit PDFOutline(std::weak_ptr<PDFPages> pages) : pages_(std::move(pages)) {}

  // As numbered by the save in progress.
  Reference ObjectNumber() const { return object_; }

  // The top level. Made on first use; the same object each time.
  const std::shared_ptr<PDFBookmarks>& Bookmarks();

  void NumberObjects(const Internal&, ObjectNumbers& numbers);
  void WriteObjects(const Internal&, SaveFile& file);

 private:
  struct Numbered {
    const PDFBookmark* bookmark = nullptr;  // null for the root
    Reference object{};
    OutlinePlace place{};
    bool expanded = false;
  };

  Numbered& At(Reference object) {
    return numbered_[static_cast<std::size_t>(object.Number() - object_.Number())];
  }

  std::weak_ptr<PDFPages> pages_;
  std::shared_ptr<PDFBookmarks> bookmarks_;
  Reference object_;
  // Between numbering and writing, when no host is called that could change the outline: the root
  // and all bookmarks, in the order of their numbers.
  std::vector<Numbered> numbered_;
};

}  // namespace folivar
