#include "folivar/navigation/PDFHyperLinks.h"

#include <utility>

#include "folivar/base/InMember.h"
#include "folivar/base/Internal.h"
#include "folivar/file/PDFText.h"

namespace folivar {

PDFHyperLinks::PDFHyperLinks(const Internal& internal, std::weak_ptr<PDFPages> pages)
    : MemberList(internal, "PDFHyperLinks"), pages_(std::move(pages)) {}

std::shared_ptr<PDFHyperLink> PDFHyperLinks::Add(TextView key, const Value& before,
                                                 const Value& after) {
  return InMember("PDFHyperLinks.Add", [&] {
    auto link = std::make_shared<PDFHyperLink>(Internal(), key);
    members_.Add(link, key, before, after);
    return link;
  });
}

void PDFHyperLinks::Remove(const Value& indexOrKey) { members_.Remove(indexOrKey); }

void PDFHyperLinks::NumberObjects(const Internal& internal, ObjectNumbers& numbers) {
  ForEach([&](PDFHyperLink& link) { link.NumberObjects(internal, numbers); });
}

//   /Annots [ 12 0 R 13 0 R ]
void PDFHyperLinks::AppendAnnots(const Internal& internal, PDFText& text) const {
  if (count() == 0) return;
  text.Append("/Annots [ ");
  ForEach([&](const PDFHyperLink& link) { text.Append(link.ObjectNumber(internal), " "); });
  text.Append("]\n");
}

void PDFHyperLinks::WriteObjects(const Internal& internal, SaveFile& file) const {
  ForEach([&](const PDFHyperLink& link) { link.WriteObjects(internal, file, pages_); });
}

}  // namespace folivar
