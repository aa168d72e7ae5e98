#include "folivar/navigation/PDFOutline.h"

#include <algorithm>
#include <cstdint>
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
void PDFOutline::NumberObjects(const Internal& internal, ObjectNumbers& numbers) {
  struct Waiting {
    const PDFBookmark* bookmark;
    Reference parent;
  };
  std::vector<Waiting> waiting;  // the next one last
  const auto wait = [&](const std::shared_ptr<PDFBookmarks>& bookmarks, Reference parent) {
    if (!bookmarks) return;
    const std::size_t start = waiting.size();
    bookmarks->ForEachBookmark(internal, [&](const PDFBookmark& bookmark) {
      waiting.push_back({&bookmark, parent});
    });
    std::reverse(waiting.begin() + static_cast<std::ptrdiff_t>(start), waiting.end());
  };

  object_ = numbers.Take();
  numbered_.assign(1, {.object = object_});
  wait(bookmarks_, object_);
  while (!waiting.empty()) {
    const auto [bookmark, parent] = waiting.back();
    waiting.pop_back();
    const Reference object = numbers.Take();
    OutlinePlace& above = At(parent).place;
    const Reference previous = std::exchange(above.last, object);
    if (previous.IsNone()) {
      above.first = object;
    } else {
      At(previous).place.next = object;
    }
    numbered_.push_back(
        {bookmark, object, {.parent = parent, .previous = previous}, bookmark->Expanded()});
    wait(bookmark->MadeSubBookmarks(internal), object);
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
void PDFOutline::WriteObjects(const Internal& internal, SaveFile& file) {
  const std::vector<Numbered> numbered = std::exchange(numbered_, {});
  const OutlinePlace& root = numbered.front().place;
  PDFText& text = file.BeginObject(object_);
  text.Append("<< /Type /Outlines\n");
  if (!root.first.IsNone()) {
    text.Append("/First ", root.first, "\n/Last ", root.last, "\n/Count ", root.visibleCount, "\n");
  }
  text.Append(">>\n");
  file.EndObject();

  for (std::size_t i = 1; i < numbered.size(); ++i) {
    const Numbered& written = numbered[i];
    written.bookmark->BuildBookmarkText(internal, file.BeginObject(written.object), written.place,
                                        pages_);
    file.EndObject();
  }
}

}  // namespace folivar
