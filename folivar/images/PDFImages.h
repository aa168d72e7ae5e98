#pragma once

#include <memory>

#include "folivar/base/Api.h"
#include "folivar/base/MemberList.h"
#include "folivar/base/Object.h"
#include "folivar/base/Text.h"
#include "folivar/base/Value.h"
#include "folivar/images/PDFImage.h"

namespace folivar {

class Internal;
class PDFDocument;

// The images of a document; reached through PDFDocument::Images. An image is never taken out.
class FOLIVAR_API PDFImages final : public Object, public MemberList<PDFImage> {
 public:
  // Makes an image, yet without a file, at the place before or after the image that `before` or
  // `after` names (position or key), or at the end. An empty key is no key. Raises 5 when both
  // places are given, 457 for a key in use, then 5 for a key or 9 for a position that names no
  // image.
  std::shared_ptr<PDFImage> Add(TextView key = {}, const Value& before = {},
                                const Value& after = {});

  // For the library

  PDFImages(const Internal&, std::weak_ptr<PDFDocument> document);

  void NumberObjects(const Internal&, ObjectNumbers& numbers);
  void WriteObjects(const Internal&, SaveFile& file) const;

 private:
  std::weak_ptr<PDFDocument> document_;
};

}  // namespace folivar
