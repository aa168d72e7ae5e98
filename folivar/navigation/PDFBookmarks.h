#pragma once

#include <memory>

#include "folivar/base/Api.h"
#include "folivar/base/MemberList.h"
#include "folivar/base/Object.h"
#include "folivar/base/Text.h"
#include "folivar/base/Value.h"
#include "folivar/navigation/PDFBookmark.h"

namespace folivar {

class Internal;

// One level of the document's outline, in the order in which it is shown; reached through
// PDFDocument::Bookmarks and PDFBookmark::SubBookmarks. Bookmarks may lie as deep as memory allows.
class FOLIVAR_API PDFBookmarks final : public Object, public MemberList<PDFBookmark> {
 public:
  ~PDFBookmarks() override;

  // Makes a closed bookmark without a title, at the place before or after the bookmark that
  // `before` or `after` names (position or key), or at the end. An empty key is no key. Raises 5
  // when both places are given, 457 for a key in use, then 5 for a key or 9 for a position that
  // names no bookmark.
  std::shared_ptr<PDFBookmark> Add(TextView key = {}, const Value& before = {},
                                   const Value& after = {});

  // Takes a bookmark out of the outline, with those below it; who holds it may still use it. Raises
  // as Item.
  void Remove(const Value& indexOrKey);

  // Moves the bookmark with this key to the place named, or to the end. Never raises: an unknown
  // key changes nothing. When both places are given, `after` is ignored; a bookmark whose new place
  // does not exist, counted without the bookmark, stays removed.
  template <class Before = Value, class After = Value>
  void ReOrder(TextView key, const Before& before = {}, const After& after = {}) noexcept {
    MoveMember(key, before, after, [this](const Value& name) { Remove(name); });
  }

  // For the library

  explicit PDFBookmarks(const Internal&);

  // visit(PDFBookmark&) for each in order.
  template <class Visit>
  void ForEachBookmark(const Internal&, Visit visit) const {
    ForEach(visit);
  }

 private:
  static std::shared_ptr<PDFBookmarks> TakeDoomed(PDFBookmarks& from,
                                                  std::shared_ptr<PDFBookmarks> others);

  std::shared_ptr<PDFBookmarks> nextDoomed_;
};

}  // namespace folivar
