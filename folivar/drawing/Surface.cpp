#include "folivar/drawing/Surface.h"

#include <string>

#include "folivar/base/Error.h"
#include "folivar/base/Internal.h"
#include "folivar/base/SameOwner.h"
#include "folivar/file/ByteSink.h"
#include "folivar/file/XObject.h"

namespace folivar {
namespace {

constexpr std::string_view kBegin = "q\n";
constexpr std::string_view kEnd = "Q\n";

}  // namespace

void Surface::SetFont(std::shared_ptr<PDFFont> font) {
  if (!font) throw Error::ObjectNotSet("no font is given");
  if (font_) CheckIsOfDocument(*font);
  resources_.AddFontResource(*font);
  font_ = std::move(font);
}

void Surface::CheckIsOfDocument(const PDFFont& font) const {
  if (!AreSame(font.Owner(Internal()), font_->Owner(Internal()))) {
    throw Error::InvalidArgument("belongs to another document")
        .WithObject("font '" + font.FontFace().Utf8() + "'");
  }
}

bool Surface::IsOfSameDocument(const Surface& other) const {
  return AreSame(document_, other.document_);
}

void Surface::CheckIsOfDocument(const XObject* object, std::string_view className) const {
  if (object == nullptr) throw Error::ObjectNotSet("no " + std::string(className) + " is given");
  if (!AreSame(object->ParentDocument(Internal()), document_)) {
    throw Error::InvalidArgument("belongs to another document")
        .WithObject(std::string(className) + " " + object->NameInErrors(Internal()));
  }
}

std::size_t Surface::StreamLength(std::string_view textBoxes) const {
  return kBegin.size() + content_.Size() + kEnd.size() + textBoxes.size();
}

//   q
//   ...
//   Q
//   % Begin Textbox
//   ...
void Surface::WriteStream(ByteSink& out, std::string_view textBoxes) const {
  out.Write(kBegin);
  out.Write(content_.Bytes());
  out.Write(kEnd);
  out.Write(textBoxes);
}

}  // namespace folivar
