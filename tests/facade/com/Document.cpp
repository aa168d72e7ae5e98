#include "Document.h"

#include "Creation.h"

namespace facade {
namespace {

// To the end of the program, when the component is unloaded.
class Apartment {
 public:
  Apartment() { RaiseIfFailed(CoInitialize(nullptr)); }
  ~Apartment() { CoUninitialize(); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
};

}  // namespace

Handle<automation::_PDFDocument> NewDocument() {
  static const Apartment apartment;
  ComPtr<automation::_PDFDocument> document;
  RaiseIfFailed(CreateDocument(reinterpret_cast<void**>(document.GetAddressOf())));
  return Handle<automation::_PDFDocument>(std::move(document));
}

}  // namespace facade
