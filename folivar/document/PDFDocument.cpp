#include "folivar/document/PDFDocument.h"

#include <array>
#include <cassert>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "folivar/base/InMember.h"
#include "folivar/base/Internal.h"
#include "folivar/document/PDFCatalog.h"
#include "folivar/document/PDFPages.h"
#include "folivar/file/FileHandle.h"
#include "folivar/file/FileSink.h"
#include "folivar/file/FileSystem.h"
#include "folivar/file/ObjectNumbers.h"
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

// Opening one for writing would empty it.
void PDFDocument::RefuseFilesOfItsOwn(const Text& target) const {
  if (images_->count() == 0 && !fonts_->ReadsFiles(Internal())) return;
  CheckFileName(target);
  const std::optional<FileId> targetId = FileIdOf(target);
  if (!targetId) return;
  const auto refuse = [&](const Text& file) {
    if (file.IsEmpty() || FileIdOf(file) != targetId) return;
    throw Error::PermissionDenied("cannot be written: the document reads " + FileNamed(file.Utf8()))
        .WithObject(FileNamed(target.Utf8()));
  };
  for (const auto& image : *images_) refuse(image->FileName());
  for (const Text& fontFile : fonts_->FileNames(Internal())) refuse(fontFile);
}

void PDFDocument::Save(TextView fileName) {
  RefuseFilesOfItsOwn(Text(fileName));
  FileSink sink(fileName);
  const Internal internal;
  // What becomes objects of the file, in their order there. A save walks them twice: first each
  // takes numbers, then each writes its objects in the same order, exactly as many as it took.
  const auto forEachWriter = [this](auto visit) {
    visit(*catalog_);
    visit(*outline_);
    visit(*pages_);
    visit(*templates_);
    visit(*images_);
    visit(*fonts_);
  };

  ObjectNumbers numbers;
  std::array<std::int32_t, 6> ends{};  // the number behind each writer's last
  auto end = ends.begin();
  forEachWriter([&](auto& writer) {
    writer.NumberObjects(internal, numbers);
    *end++ = numbers.NextObjectNumber();
  });

  SaveFile file(sink, static_cast<std::size_t>(numbers.NextObjectNumber()) - 1);
  end = ends.begin();
  forEachWriter([&](auto& writer) {
    writer.WriteObjects(internal, file);
    // A writer that writes more or fewer objects than it numbered breaks the file: caught here.
    assert(std::cmp_equal(file.ObjectCount() + 1, *end));
    ++end;
  });
  file.Finish(catalog_->ObjectNumber());
  sink.Close();
}

}  // namespace folivar
