#pragma once

#include <memory>

#include "folivar/base/Warnings.h"
#include "folivar/fonts/FontFiles.h"
#include "folivar/fonts/SystemFonts.h"

namespace folivar {

// What a document asks of the system it runs on. Handed over when the document is made; a port left
// null is the system's own.
struct Platform {
  std::shared_ptr<Warnings> warnings = nullptr;        // null: Warnings::OfThisSystem
  std::shared_ptr<SystemFonts> systemFonts = nullptr;  // null: SystemFonts::OfThisSystem
  // Font files of the host's, which win over the system's fonts; documents may share them. Null:
  // none at first, and PDFDocument::FontFiles may add some.
  std::shared_ptr<FontFiles> fontFiles = nullptr;
};

}  // namespace folivar
