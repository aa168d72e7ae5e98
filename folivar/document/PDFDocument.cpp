#include "folivar/document/PDFDocument.h"

#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "folivar/base/InMember.h"
#include "folivar/base/Internal.h"
#include "folivar/document/PDFCatalog.h"
#include "folivar/document/PDFPages.h"
#include "folivar/file/FileSink.h"
#include "folivar/file/ObjectNumbers.h"
#include "folivar/file/ObjectWriter.h"
#include "folivar/file/SaveFile.h"
#include "folivar/fonts/PDFFont.h"
#include "folivar/fonts/PDFFonts.h"
#include "folivar/images/PDFImages.h"
#include "folivar/navigation/PDFBookmarks.h"
#include "folivar/navigation/PDFOutline.h"
#include "folivar/page/PDFTemplates.h"

namespace folivar {

std::shared_ptr<PDFDocument> PDFDocument::Create(Platform platform) {
  if (!platform.warnings) platform.warnings = Warnings::OfThisSystem();
  if (!platform.systemFonts) platform.systemFonts = SystemFonts::OfThisSystem();
  if (!platform.fontFiles) platform.fontFiles = std::make_shared<folivar::FontFiles>();
  auto document = std::make_shared<PDFDocument>(Internal(), std::move(platform));
  document->Initialise();
  return document;
}

PDFDocument::PDFDocument(const Internal&, Platform platform) : platform_(std::move(platform)) {}

PDFDocument::~PDFDocument() = default;

// Not in the constructor: the children get a reference to the document.
void PDFDocument::Initialise() {
  fonts_ = std::make_shared<PDFFonts>(Internal(), platform_.warnings, platform_.systemFonts,
                                      platform_.fontFiles);
  const std::shared_ptr<PDFFont> defaultFont = fonts_->Add("Helvetica");
  pages_ = std::make_shared<PDFPages>(Internal(), Shared<PDFDocument>(), defaultFont);
  images_ = std::make_shared<PDFImages>(Internal(), Shared<PDFDocument>());
  outline_ = std::make_shared<PDFOutline>(pages_);
  catalog_ = std::make_shared<PDFCatalog>(outline_, pages_);
  templates_ = std::make_shared<PDFTemplates>(Internal(), Shared<PDFDocument>(), defaultFont);
}

std::shared_ptr<PDFBookmarks> PDFDocument::Bookmarks() const { return outline_->Bookmarks(); }

std::shared_ptr<PDFViewerPreferences> PDFDocument::ViewerPreferences() const {
  return catalog_->ViewerPreferences();
}

void PDFDocument::SavePDFFile(TextView fileName) {
  InMember("PDFDocument.SavePDFFile", [&] { Save(fileName); });
}

void PDFDocument::Save(TextView fileName) {
  FileSink sink(fileName);
  struct Step {
    ObjectWriter& writer;
    std::int32_t endNumber = 0;
  };
  // The order of the objects in the file.
  std::array<Step, 6> steps = {
      {{*catalog_}, {*outline_}, {*pages_}, {*templates_}, {*images_}, {*fonts_}}};

  ObjectNumbers numbers;
  for (Step& step : steps) {
    step.writer.NumberObjects(numbers);
    step.endNumber = numbers.NextObjectNumber();
  }

  SaveFile file(sink);
  for (const Step& step : steps) {
    step.writer.WriteObjects(file);
    // A writer that writes more or fewer objects than it numbered breaks the file: caught here.
    assert(file.ObjectCount() + 1 == static_cast<std::size_t>(step.endNumber));
  }
  file.Finish(catalog_->ObjectNumber());
  sink.Close();
}

}  // namespace folivar
