#include "folivar/navigation/PDFOutline.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "folivar/base/Internal.h"
#include "folivar/file/ObjectNumbers.h"
#include "folivar/file/PDFText.h"
#include "folivar/file/SaveFile.h"
#include "folivar/navigation/PDFBookmark.h"
#include "folivar/navigation/PDFBookmarks.h"

namespace folivar {

const std::shared_ptr<PDFBookmarks>& PDFOutline::Bookmarks() {
  if (!bookmarks_) bookmarks_ = std::make_shared<PDFBookmarks>(Internal());
  return bookmarks_;
}

// The bookmarks are laid out in a row, so that nothing depends on how deep they lie.
void PDFOutline::NumberObjects(ObjectNumbers& numbers) {
  struct Waiting {
    const PDFBookmark* bookmark;
    std::int32_t parent;
  };
  std::vector<Waiting> waiting;  // the next one last
  const auto wait = [&](const std::shared_ptr<PDFBookmarks>& bookmarks, std::int32_t parent) {
    if (!bookmarks) return;
    const std::size_t start = waiting.size();
    bookmarks->ForEach(Internal(), [&](const std::shared_ptr<PDFBookmark>& bookmark) {
      waiting.push_back({bookmark.get(), parent});
    });
    std::reverse(waiting.begin() + static_cast<std::ptrdiff_t>(start), waiting.end());
  };

  objectNumber_ = numbers.Take();
  numbered_.assign(1, {});
  wait(bookmarks_, objectNumber_);
  while (!waiting.empty()) {
    const auto [bookmark, parentNumber] = waiting.back();
    waiting.pop_back();
    const std::int32_t number = numbers.Take();
    OutlinePlace& parent = At(parentNumber).place;
    const std::int32_t previous = std::exchange(parent.last, number);
    if (previous == 0) {
      parent.first = number;
    } else {
      At(previous).place.next = number;
    }
    numbered_.push_back(
        {bookmark, {.parent = parentNumber, .previous = previous}, bookmark->Expanded()});
    wait(bookmark->MadeSubBookmarks(Internal()), number);
  }

  // From the last to the first, so that those below a bookmark are counted before it is.
  for (std::size_t i = numbered_.size() - 1; i > 0; --i) {
    const Numbered& counted = numbered_[i];
    std::int32_t& visible = At(counted.place.parent).place.visibleCount;
    visible += 1 + (counted.expanded ? counted.place.visibleCount : 0);
  }
}

//   2 0 obj
//   << /Type /Outlines
//   /First 3 0 R
//   /Last 7 0 R
//   /Count 4
//   >>
//   endobj
void PDFOutline::WriteObjects(SaveFile& file) {
  const std::vector<Numbered> numbered = std::exchange(numbered_, {});
  const OutlinePlace& root = numbered.front().place;
  PDFText& text = file.BeginObject(objectNumber_);
  text.Append("<< /Type /Outlines\n");
  if (root.first != 0) {
    text.Append("/First ", Reference{root.first}, "\n/Last ", Reference{root.last}, "\n/Count ",
                root.visibleCount, "\n");
  }
  text.Append(">>\n");
  file.EndObject();

  std::int32_t number = objectNumber_;
  for (std::size_t i = 1; i < numbered.size(); ++i) {
    numbered[i].bookmark->BuildBookmarkText(Internal(), file.BeginObject(++number),
                                            numbered[i].place, pages_);
    file.EndObject();
  }
}

}  // namespace folivar
