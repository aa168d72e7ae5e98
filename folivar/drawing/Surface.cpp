#include "folivar/drawing/Surface.h"

#include <cstddef>
#include <string>
#include <utility>

#include "folivar/base/Error.h"
#include "folivar/base/Internal.h"
#include "folivar/file/SaveFile.h"
#include "folivar/file/XObject.h"

namespace folivar {
namespace {

// Also when the object is gone.
template <class T>
bool AreSame(const std::weak_ptr<T>& a, const std::weak_ptr<T>& b) {
  return !a.owner_before(b) && !b.owner_before(a);
}

bool HaveSameOwner(const FaceUser& a, const FaceUser& b) {
  return AreSame(a.Owner(Internal()), b.Owner(Internal()));
}

}  // namespace

void Surface::SetFont(std::shared_ptr<PDFFont> font) {
  if (!font) throw Error::ObjectNotSet("no font is given");
  if (font_) CheckIsOfDocument(*font);
  resources_.AddFontResource(*font);
  font_ = std::move(font);
}

void Surface::CheckIsOfDocument(const PDFFont& font) const {
  if (!HaveSameOwner(font, *font_)) {
    throw Error::InvalidArgument("belongs to another document")
        .WithObject("font '" + font.FontFace().Utf8() + "'");
  }
}

bool Surface::IsOfSameDocument(const Surface& other) const {
  return AreSame(document_, other.document_);
}

void Surface::CheckIsOfDocument(const XObject* object, std::string_view kind) const {
  if (object == nullptr) throw Error::ObjectNotSet("no " + std::string(kind) + " is given");
  if (!AreSame(object->ParentDocument(Internal()), document_)) {
    throw Error::InvalidArgument("belongs to another document")
        .WithObject(std::string(kind) + " " + NameOf(*object));
  }
}

//   /Length 0000000004 >>
//   stream
//   q
//   Q
//   % Begin Textbox
//   ...
//   endstream
void Surface::WriteStream(SaveFile& file, std::string_view textBoxes) const {
  constexpr std::string_view kBegin = "q\n";
  constexpr std::string_view kEnd = "Q\n";
  const std::string_view content = content_.Bytes();
  const std::size_t length = kBegin.size() + content.size() + kEnd.size() + textBoxes.size();
  file.OpenObject().Append("/Length ", TenDigits{length}, " >>\nstream\n", kBegin);
  file.AppendBytes(content);
  file.AppendBytes(kEnd);
  file.AppendBytes(textBoxes);
  file.AppendBytes("endstream\n");
}

}  // namespace folivar
