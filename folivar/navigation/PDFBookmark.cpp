#include "folivar/navigation/PDFBookmark.h"

#include <string>

#include "folivar/base/InMember.h"
#include "folivar/base/Internal.h"
#include "folivar/file/PDFText.h"
#include "folivar/navigation/EscapeTitle.h"
#include "folivar/navigation/OutlinePlace.h"
#include "folivar/navigation/PDFBookmarks.h"

namespace folivar {

PDFBookmark::PDFBookmark(const Internal& internal, TextView key)
    : key_(key), destination_(internal) {}

PDFBookmark::~PDFBookmark() = default;

void PDFBookmark::SetTitle(TextView title) {
  InMember("PDFBookmark.Title", [&] { title_ = Text(title); });
}

void PDFBookmark::SetPlainTitle(TextView text) {
  InMember("PDFBookmark.SetPlainTitle", [&] { title_ = EscapeTitle(text); });
}

const std::shared_ptr<PDFBookmarks>& PDFBookmark::SubBookmarks() {
  if (!subBookmarks_) subBookmarks_ = std::make_shared<PDFBookmarks>(Internal());
  return subBookmarks_;
}

std::shared_ptr<PDFLinkDestination> PDFBookmark::Destination() {
  return {Shared<PDFBookmark>(), &destination_};
}

//   << /Title (Chapter 1)
//   /Parent 2 0 R
//   /Prev 3 0 R
//   /Next 9 0 R
//   /First 5 0 R
//   /Last 8 0 R
//   /Count 2/Dest [ 12 0 R /Fit ]
//   >>
void PDFBookmark::BuildBookmarkText(const Internal& internal, PDFText& text,
                                    const OutlinePlace& place,
                                    const std::weak_ptr<PDFPages>& pages) const {
  // Deliberate: the title is not escaped; hosts pass titles that are, or have them escaped.
  text.Append("<< /Title (", Ansi{title_.Utf16()}, ")\n/Parent ", place.parent, "\n");
  if (!place.previous.IsNone()) text.Append("/Prev ", place.previous, "\n");
  if (!place.next.IsNone()) text.Append("/Next ", place.next, "\n");
  if (!place.first.IsNone()) {
    // Deliberate: no line end behind the count; what follows stands on the same line.
    text.Append("/First ", place.first, "\n/Last ", place.last, "\n/Count ",
                expanded_ ? place.visibleCount : -place.visibleCount);
  }
  OfObject([&] { return "PDFBookmark '" + title_.Utf8() + "'"; },
           [&] { destination_.AppendDestination(internal, text, pages); });
  text.Append(">>\n");
}

}  // namespace folivar
