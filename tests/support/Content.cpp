#include "tests/support/Content.h"

#include <cstddef>
#include <stdexcept>

#include "tests/support/StrictPdf.h"
#include "tests/support/TestFiles.h"

namespace folivar::test {

std::string ContentOf(PDFPage& page) {
  const auto document = page.ParentDocument();
  std::size_t index = 0;
  for (const auto& each : *document->Pages()) {
    if (each.get() == &page) break;
    ++index;
  }
  const auto path = OutputPath("content.pdf");
  document->SavePDFFile(path.u16string());
  const StrictPdf pdf(ReadBytes(path));
  // Catalog, outline and page tree come first; a page is followed by its content.
  const std::string stream(pdf.Stream(5 + 2 * index));
  if (!stream.starts_with("q\n") || !stream.ends_with("Q\n")) {
    throw std::runtime_error("the content is not enclosed in q and Q: " + stream);
  }
  return stream.substr(2, stream.size() - 4);
}

std::string ContentAfter(const std::function<void(PDFPage&)>& draw) {
  const auto document = PDFDocument::Create();
  const auto page = document->Pages()->Add();
  draw(*page);
  return ContentOf(*page);
}

int ErrorNumberOf(const std::function<void()>& action) {
  try {
    action();
    return 0;
  } catch (const Error& error) {
    return error.Number();
  }
}

std::string ErrorTextOf(const std::function<void()>& action) {
  try {
    action();
    return {};
  } catch (const Error& error) {
    return error.what();
  }
}

}  // namespace folivar::test
