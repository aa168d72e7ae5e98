#pragma once

#include <memory>

#include "folivar/base/Api.h"
#include "folivar/base/MemberList.h"
#include "folivar/base/Object.h"
#include "folivar/base/Text.h"
#include "folivar/base/Value.h"
#include "folivar/page/PDFTemplate.h"

namespace folivar {

class Internal;
class PDFDocument;
class PDFFont;

// The templates of a document; reached through PDFDocument::Templates. All of them are written,
// also those that no page shows; none can be taken out.
class FOLIVAR_API PDFTemplates final : public Object, public MemberList<PDFTemplate> {
 public:
  // Makes an empty template whose current font is the document's default font, at the place before
  // or after the template that `before` or `after` names (position or key), or at the end. An empty
  // key is no key. Raises 5 when both places are given, 457 for a key in use, then 5 for a key or 9
  // for a position that names no template.
  std::shared_ptr<PDFTemplate> Add(TextView key = {}, const Value& before = {},
                                   const Value& after = {});

  // For the library

  PDFTemplates(const Internal&, std::weak_ptr<PDFDocument> document,
               std::shared_ptr<PDFFont> defaultFont);

  void NumberObjects(const Internal&, ObjectNumbers& numbers);
  void WriteObjects(const Internal&, SaveFile& file);

 private:
  std::weak_ptr<PDFDocument> document_;
  std::shared_ptr<PDFFont> defaultFont_;
};

}  // namespace folivar
