#include "folivar/page/Surface.h"

#include <utility>

#include "folivar/document/Error.h"
#include "folivar/document/Internal.h"

namespace folivar {
namespace {

bool HaveSameOwner(const FaceUser& a, const FaceUser& b) {
  const auto& ownerOfA = a.Owner(Internal());
  const auto& ownerOfB = b.Owner(Internal());
  return !ownerOfA.owner_before(ownerOfB) && !ownerOfB.owner_before(ownerOfA);
}

}  // namespace

void Surface::SetFont(std::shared_ptr<PDFFont> font) {
  if (!font) throw Error::ObjectNotSet("no font is given");
  if (font_ && !HaveSameOwner(*font, *font_)) {
    throw Error::InvalidArgument("Font '" + font->FontFace().Utf8() +
                                 "' belongs to another document");
  }
  resources_.AddFontResource(*font);
  font_ = std::move(font);
}

}  // namespace folivar
