#pragma once

#include <memory>

#include "folivar/base/Api.h"
#include "folivar/base/Tagged.h"
#include "folivar/base/Text.h"
#include "folivar/document/Platform.h"

namespace folivar {

class Internal;
class PDFBookmarks;
class PDFCatalog;
class PDFFonts;
class PDFImages;
class PDFOutline;
class PDFPages;
class PDFTemplates;
class PDFViewerPreferences;

// A PDF 1.3 document in the making: the root of the object model and the one object that a host
// creates. What it holds can be read, drawn on and saved any number of times.
class FOLIVAR_API PDFDocument final : public Tagged {
 public:
  // A document without pages. Its default font, with which every page and template starts, is
  // Helvetica of size 10.
  static std::shared_ptr<PDFDocument> Create(Platform platform = {});

  ~PDFDocument() override;

  // Writes the document as it is now; an existing file is replaced. The same document gives the
  // same bytes each time, as long as its images' files do not change and no text box sizes itself
  // (PDFTextBox::AutoSize). A document without pages is saved too; some readers refuse it.
  //
  // `fileName` is relative to the working folder. The file is written from front to back: a pipe, a
  // device such as /dev/stdout, or a file in memory (/dev/fd/5) will do.
  //
  // Raises 52 for a bad name, 61 for a full disk, 70, 75 or 76 for a file or folder that cannot be
  // written, 6 for a number that PDF cannot hold, and what PDFImage::FileName says; the file is
  // closed then, and may be left partly written. Raises 70 before anything is touched for a file
  // that the document reads, under whatever name: a picture's, one of FontFiles(), or that of an
  // installed TrueType face, where the system tells it (Windows does not).
  void SavePDFFile(TextView fileName);

  std::shared_ptr<PDFPages> Pages() const { return pages_; }
  std::shared_ptr<PDFFonts> Fonts() const { return fonts_; }
  std::shared_ptr<PDFTemplates> Templates() const { return templates_; }
  std::shared_ptr<PDFImages> Images() const { return images_; }
  // The top level of the outline.
  std::shared_ptr<PDFBookmarks> Bookmarks() const;
  std::shared_ptr<PDFViewerPreferences> ViewerPreferences() const;

  // The font files that the document takes TrueType faces from before the system's: those of its
  // platform. What is added counts for faces that are added to Fonts from then on.
  std::shared_ptr<folivar::FontFiles> FontFiles() const { return platform_.fontFiles; }

  // For the library

  PDFDocument(const Internal&, Platform platform);

 private:
  void Initialise();
  void Save(TextView fileName);
  void RefuseFilesOfItsOwn(const Text& target) const;

  Platform platform_;
  std::shared_ptr<PDFFonts> fonts_;
  std::shared_ptr<PDFPages> pages_;
  std::shared_ptr<PDFImages> images_;
  std::shared_ptr<PDFOutline> outline_;
  std::shared_ptr<PDFCatalog> catalog_;
  std::shared_ptr<PDFTemplates> templates_;
};

}  // namespace folivar
