#include <folivar/folivar.h>

#include "Creation.h"

namespace folivar::automated {
namespace {

// To the end of the program, when the component is unloaded.
class Apartment {
 public:
  Apartment() { com::RaiseIfFailed(CoInitialize(nullptr)); }
  ~Apartment() { CoUninitialize(); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
};

}  // namespace

std::shared_ptr<PDFDocument> PDFDocument::Create(const Platform& /*platform*/) {
  static const Apartment apartment;
  com::ComPtr<Interface> document;
  com::RaiseIfFailed(CreateDocument(reinterpret_cast<void**>(document.GetAddressOf())));
  std::string name = Script::NewName();
  Script::Line("Set " + name + " = CreateObject(\"Folivar.PDFDocument\")");
  return std::make_shared<PDFDocument>(std::move(document), std::move(name));
}

}  // namespace folivar::automated
