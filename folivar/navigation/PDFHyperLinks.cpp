#include "folivar/navigation/PDFHyperLinks.h"

#include <utility>

#include "folivar/base/InMember.h"
#include "folivar/base/Internal.h"
#include "folivar/file/ObjectNumbers.h"
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

void PDFHyperLinks::NumberObjects(const Internal&, ObjectNumbers& numbers) {
  objects_.resize(members_.Count());
  for (Reference& object : objects_) object = numbers.Take();
}

//   /Annots [ 12 0 R 13 0 R ]
void PDFHyperLinks::AppendAnnots(const Internal&, PDFText& text) const {
  if (objects_.empty()) return;
  text.Append("/Annots [ ");
  for (const Reference object : objects_) text.Append(object, " ");
  text.Append("]\n");
}

void PDFHyperLinks::WriteObjects(const Internal& internal, SaveFile& file) const {
  auto object = objects_.begin();
  ForEach([&](const PDFHyperLink& link) { link.WriteObject(internal, file, *object++, pages_); });
}

}  // namespace folivar
