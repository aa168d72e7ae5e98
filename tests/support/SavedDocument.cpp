#include "tests/support/SavedDocument.h"

#include "tests/support/TestFiles.h"
#include "tests/support/Tools.h"

namespace folivar::test {

SavedDocument Save(PDFDocument& document, std::string_view name, Check check) {
  const std::filesystem::path path = OutputPath(name);
  document.SavePDFFile(path.u8string());
  std::string bytes = ReadBytes(path);
  StrictPdf pdf(bytes);
  if (check == Check::kFormAndTools) ExpectSound(path);
  return {path, std::move(bytes), std::move(pdf)};
}

}  // namespace folivar::test
