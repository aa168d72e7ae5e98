#include "folivar/document/PDFDocument.h"

#include <array>
#include <cassert>
#include <cstddef>
#include <utility>

#include "folivar/document/FileSink.h"
#include "folivar/document/Internal.h"
#include "folivar/document/ObjectNumbers.h"
#include "folivar/document/ObjectWriter.h"
#include "folivar/document/PDFCatalog.h"
#include "folivar/document/PDFPages.h"
#include "folivar/document/SaveFile.h"
#include "folivar/fonts/PDFFont.h"
#include "folivar/fonts/PDFFonts.h"
#include "folivar/navigation/PDFOutline.h"

namespace folivar {

std::shared_ptr<PDFDocument> PDFDocument::Create(Platform platform) {
  if (!platform.warnings) platform.warnings = Warnings::ToStandardError();
  auto document = std::make_shared<PDFDocument>(Internal(), std::move(platform));
  document->Initialise();
  return document;
}

PDFDocument::PDFDocument(const Internal&, Platform platform) : platform_(std::move(platform)) {}

PDFDocument::~PDFDocument() = default;

// Not in the constructor: the children get a reference to the document.
void PDFDocument::Initialise() {
  fonts_ = std::make_shared<PDFFonts>(Internal(), platform_.warnings);
  const std::shared_ptr<PDFFont> defaultFont = fonts_->Add("Helvetica");
  pages_ = std::make_shared<PDFPages>(Internal(), Shared<PDFDocument>(), defaultFont);
  outline_ = std::make_shared<PDFOutline>();
  catalog_ = std::make_shared<PDFCatalog>(outline_, pages_);
}

std::shared_ptr<PDFViewerPreferences> PDFDocument::ViewerPreferences() const {
  return catalog_->ViewerPreferences();
}

void PDFDocument::SavePDFFile(TextView fileName) {
  FileSink sink(fileName);
  // The order of the objects in the file.
  const std::array<ObjectWriter*, 4> writers = {catalog_.get(), outline_.get(), pages_.get(),
                                                fonts_.get()};

  ObjectNumbers numbers;
  std::array<std::int32_t, writers.size()> endNumbers{};
  for (std::size_t i = 0; i < writers.size(); ++i) {
    writers[i]->NumberObjects(numbers);
    endNumbers[i] = numbers.NextObjectNumber();
  }

  SaveFile file(sink);
  for (std::size_t i = 0; i < writers.size(); ++i) {
    writers[i]->WriteObjects(file);
    // A writer that writes more or fewer objects than it numbered breaks the file: caught here.
    assert(file.ObjectCount() + 1 == static_cast<std::size_t>(endNumbers[i]));
  }
  file.Finish(catalog_->ObjectNumber());
  sink.Close();
}

}  // namespace folivar
