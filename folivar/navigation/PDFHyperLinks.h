#pragma once

#include <memory>
#include <vector>

#include "folivar/base/Api.h"
#include "folivar/base/MemberList.h"
#include "folivar/base/Object.h"
#include "folivar/base/Text.h"
#include "folivar/base/Value.h"
#include "folivar/file/Reference.h"
#include "folivar/navigation/PDFHyperLink.h"

namespace folivar {

class Internal;
class ObjectNumbers;
class PDFPages;
class PDFText;
class SaveFile;

// The links of one page; reached through PDFPage::HyperLinks. Where links overlap, readers follow
// the later one.
class FOLIVAR_API PDFHyperLinks final : public Object, public MemberList<PDFHyperLink> {
 public:
  // Makes a link with an empty region at the page's origin, at the place before or after the link
  // that `before` or `after` names (position or key), or at the end. An empty key is no key. Raises
  // 5 when both places are given, 457 for a key in use, then 5 for a key or 9 for a position that
  // names no link.
  std::shared_ptr<PDFHyperLink> Add(TextView key = {}, const Value& before = {},
                                    const Value& after = {});

  // Takes a link off the page; who holds it may still use it. Raises as Item.
  void Remove(const Value& indexOrKey);

  // For the library

  PDFHyperLinks(const Internal&, std::weak_ptr<PDFPages> pages);

  void NumberObjects(const Internal&, ObjectNumbers& numbers);
  void WriteObjects(const Internal&, SaveFile& file) const;
  // Appends "/Annots " and the references to the links as an entry of a dictionary, if there are
  // links.
  void AppendAnnots(const Internal&, PDFText& text) const;

 private:
  std::weak_ptr<PDFPages> pages_;
  std::vector<Reference> objects_;  // of the links, in order
};

}  // namespace folivar
