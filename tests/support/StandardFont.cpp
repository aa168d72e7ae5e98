#include "tests/support/StandardFont.h"

#include <string>

#include "folivar/base/Internal.h"
#include "folivar/fonts/PDFFontInfo.h"
#include "folivar/fonts/StandardFaces.h"

namespace folivar::test {

std::shared_ptr<PDFFont> StandardFont(std::string_view face, float size, std::string_view pdfName) {
  auto info = std::make_shared<PDFFontInfo>();
  info->m_PDFName = std::string(pdfName);
  info->LoadStandardMetrics(FindStandardFace(Text(face)).value());
  auto font = std::make_shared<PDFFont>(Internal(), info, std::weak_ptr<PDFFonts>());
  font->SetSize(size);
  return font;
}

}  // namespace folivar::test
