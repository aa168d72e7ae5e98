#include "Document.h"

namespace facade {

Handle<automation::_PDFDocument> NewDocument() {
  folivar_object* document = nullptr;
  RaiseIfFailed(folivar_create("PDFDocument", nullptr, &document));
  return Handle<automation::_PDFDocument>(document);
}

}  // namespace facade
