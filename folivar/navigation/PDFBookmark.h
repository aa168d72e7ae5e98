#pragma once

#include <memory>
#include <utility>

#include "folivar/base/Api.h"
#include "folivar/base/MemberKey.h"
#include "folivar/base/Tagged.h"
#include "folivar/base/Text.h"
#include "folivar/navigation/PDFLinkDestination.h"

namespace folivar {

class Internal;
class PDFBookmarks;
class PDFPages;
class PDFText;
struct OutlinePlace;

// One entry of the document's outline, with those below it; made by PDFBookmarks::Add.
class FOLIVAR_API PDFBookmark final : public Tagged {
 public:
  ~PDFBookmark() override;

  // Empty at first. Deliberate: it is written as it stands, between parentheses, so that hosts may
  // escape it in their own ways. So a title is a piece of the file's syntax: a parenthesis without
  // its other, or a backslash, spoils the outline, and
  //
  //   Chapter 1) /A << /S /Launch /F (cmd.exe) >> /X (
  //
  // is a bookmark that starts a program. Text that comes from strangers, such as a heading of their
  // document, goes through SetPlainTitle or EscapeTitle.
  const Text& Title() const { return title_; }
  void SetTitle(TextView title);

  // Makes any text the title, to be read as it is: SetTitle(EscapeTitle(text)). Title then has it
  // as it is written, with its escapes. Raises 5 for text that is not UTF-8.
  void SetPlainTitle(TextView text);

  // Whether the bookmarks below it show; false at first.
  bool Expanded() const { return expanded_; }
  void SetExpanded(bool expanded) { expanded_ = expanded; }

  // The bookmarks below this one. Made on first use; the same object each time.
  const std::shared_ptr<PDFBookmarks>& SubBookmarks();

  // Where it leads; the same object each time.
  std::shared_ptr<PDFLinkDestination> Destination();

  // The key given to PDFBookmarks::Add; empty without one.
  const Text& Key() const { return key_.AsText(); }

  // For the library

  PDFBookmark(const Internal&, TextView key);

  // Null before first use.
  const std::shared_ptr<PDFBookmarks>& MadeSubBookmarks(const Internal&) const {
    return subBookmarks_;
  }
  // Leaves none.
  std::shared_ptr<PDFBookmarks> TakeSubBookmarks(const Internal&) {
    return std::move(subBookmarks_);
  }
  // Appends the bookmark's dictionary; destinations lead to `pages`.
  void BuildBookmarkText(const Internal&, PDFText& text, const OutlinePlace& place,
                         const std::weak_ptr<PDFPages>& pages) const;

 private:
  MemberKey key_;
  Text title_;
  std::shared_ptr<PDFBookmarks> subBookmarks_;
  PDFLinkDestination destination_;
  bool expanded_ = false;
};

}  // namespace folivar
