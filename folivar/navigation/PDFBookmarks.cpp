#include "folivar/navigation/PDFBookmarks.h"

#include <utility>

#include "folivar/base/InMember.h"
#include "folivar/base/Internal.h"

namespace folivar {

PDFBookmarks::PDFBookmarks(const Internal& internal) : MemberList(internal, "PDFBookmarks") {}

// Bookmarks may lie so deep that each ending those below it would use up the call stack. So the
// collections below that nobody else holds are strung together first, level by level, and end one
// after another, each with members that have nothing below them any more.
PDFBookmarks::~PDFBookmarks() {
  std::shared_ptr<PDFBookmarks> doomed = TakeDoomed(*this, nullptr);
  while (doomed) {
    std::shared_ptr<PDFBookmarks> others = std::move(doomed->nextDoomed_);
    others = TakeDoomed(*doomed, std::move(others));
    doomed = std::move(others);
  }
}

// The collections right below `from` that end with it, with `others` behind them.
std::shared_ptr<PDFBookmarks> PDFBookmarks::TakeDoomed(PDFBookmarks& from,
                                                       std::shared_ptr<PDFBookmarks> others) {
  from.ForEach([&](PDFBookmark& bookmark) {
    const std::shared_ptr<PDFBookmarks>& below = bookmark.MadeSubBookmarks(Internal());
    if (bookmark.weak_from_this().use_count() > 1 || !below || below.use_count() > 1) return;
    below->nextDoomed_ = std::move(others);
    others = bookmark.TakeSubBookmarks(Internal());
  });
  return others;
}

std::shared_ptr<PDFBookmark> PDFBookmarks::Add(TextView key, const Value& before,
                                               const Value& after) {
  return InMember("PDFBookmarks.Add", [&] {
    auto bookmark = std::make_shared<PDFBookmark>(Internal(), key);
    members_.Add(bookmark, key, before, after);
    return bookmark;
  });
}

void PDFBookmarks::Remove(const Value& indexOrKey) { members_.Remove(indexOrKey); }

}  // namespace folivar
