#include "folivar/file/XObject.h"

#include <utility>

#include "folivar/file/ObjectNumbers.h"

namespace folivar {

XObject::XObject(std::weak_ptr<PDFDocument> document, TextView key, std::string resourceName)
    : document_(std::move(document)), key_(key), resourceName_(std::move(resourceName)) {}

std::string XObject::NameInErrors(const Internal&) const {
  return Key().IsEmpty() ? resourceName_ : "'" + Key().Utf8() + "'";
}

void XObject::TakeNumber(ObjectNumbers& numbers) { object_ = numbers.Take(); }

}  // namespace folivar
