#include "tests/support/StandardFont.h"

#include <string>

#include "folivar/base/Internal.h"
#include "folivar/fonts/StandardFaces.h"
#include "folivar/fonts/StandardMetrics.h"

namespace folivar::test {

std::shared_ptr<PDFFont> StandardFont(std::string_view face, float size, std::string_view pdfName) {
  const auto info = LoadStandardMetrics(FindStandardFace(Text(face)).value());
  info->m_PDFName = std::string(pdfName);
  auto font = std::make_shared<PDFFont>(Internal(), info, std::weak_ptr<PDFFonts>());
  font->SetSize(size);
  return font;
}

}  // namespace folivar::test
