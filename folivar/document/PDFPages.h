#pragma once

#include <exception>
#include <memory>

#include "folivar/base/Api.h"
#include "folivar/base/MemberList.h"
#include "folivar/base/Object.h"
#include "folivar/base/Text.h"
#include "folivar/base/Value.h"
#include "folivar/file/Reference.h"
#include "folivar/page/PDFPage.h"

namespace folivar {

class Internal;
class PDFDocument;
class PDFFont;

// The pages of a document in reading order; reached through PDFDocument::Pages.
class FOLIVAR_API PDFPages final : public Object, public MemberList<PDFPage> {
 public:
  // Makes a page of 612 by 792 points whose current font is the document's default font, at the
  // place before or after the page that `before` or `after` names (position or key), or at the end.
  // An empty key is no key. Raises 5 when both places are given, 457 for a key in use, then 5 for a
  // key or 9 for a position that names no page.
  std::shared_ptr<PDFPage> Add(TextView key = {}, const Value& before = {},
                               const Value& after = {});

  // Takes a page out of the document; who holds it may still use it. First the page raises
  // PageRemoved, whose handlers may do anything, removing pages included; what one of them throws
  // comes out of here once the page is removed. Raises as Item.
  void Remove(const Value& indexOrKey);

  // Moves the page with this key to the place named, or to the end. Never raises: an unknown key
  // changes nothing. When both places are given, `after` is ignored; a page whose new place does
  // not exist, counted without the page, stays removed. Deliberate: to be moved, the page is
  // removed, with PageRemoved, so that destinations no longer lead to it; what handlers throw is
  // dropped.
  template <class Before = Value, class After = Value>
  void ReOrder(TextView key, const Before& before = {}, const After& after = {}) noexcept {
    MoveMember(key, before, after,
               [self = Shared<PDFPages>()](const Value& name) { self->RemovePage(name); });
  }

  // For the library

  PDFPages(const Internal&, std::weak_ptr<PDFDocument> document,
           std::shared_ptr<PDFFont> defaultFont);

  void NumberObjects(const Internal&, ObjectNumbers& numbers);
  void WriteObjects(const Internal&, SaveFile& file);
  // That of the page tree, as numbered by the save in progress.
  Reference ObjectNumber(const Internal&) const { return treeNode_; }

 private:
  // Returns what the first handler threw that did.
  std::exception_ptr RemovePage(const Value& indexOrKey);

  std::weak_ptr<PDFDocument> document_;
  std::shared_ptr<PDFFont> defaultFont_;
  Reference treeNode_;
};

}  // namespace folivar
