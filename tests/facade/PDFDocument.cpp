#include <folivar/folivar.h>

#include "Document.h"

namespace folivar::automated {

std::shared_ptr<PDFDocument> PDFDocument::Create(const Platform& /*platform*/) {
  auto document = facade::NewDocument();
  std::string name = facade::Recording::NewName();
  facade::Recording::Add({"create", "PDFDocument", name});
  return std::make_shared<PDFDocument>(std::move(document), std::move(name));
}

}  // namespace folivar::automated
