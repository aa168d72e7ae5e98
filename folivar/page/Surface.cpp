#include "folivar/page/Surface.h"

#include <utility>

#include "folivar/document/Error.h"

namespace folivar {
namespace {

bool HaveSameOwner(const FaceUser& a, const FaceUser& b) {
  return !a.Owner().owner_before(b.Owner()) && !b.Owner().owner_before(a.Owner());
}

}  // namespace

void Surface::SetFont(std::shared_ptr<PDFFont> font) {
  if (!font) throw Error::ObjectNotSet("Font: no font is given");
  if (font_ && !HaveSameOwner(*font, *font_)) {
    throw Error::InvalidArgument("Font '" + font->FontFace().Utf8() +
                                 "' belongs to another document");
  }
  resources_.AddFontResource(*font);
  font_ = std::move(font);
}

}  // namespace folivar
