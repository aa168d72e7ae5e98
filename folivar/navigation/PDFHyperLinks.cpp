#include "folivar/navigation/PDFHyperLinks.h"

#include <utility>

#include "folivar/base/InMember.h"
#include "folivar/base/Internal.h"
#include "folivar/file/ObjectNumbers.h"
#include "folivar/file/PDFText.h"
#include "folivar/file/SaveFile.h"

namespace folivar {

PDFHyperLinks::PDFHyperLinks(const Internal&, std::weak_ptr<PDFPages> pages)
    : MemberList("PDFHyperLinks"), pages_(std::move(pages)) {}

std::shared_ptr<PDFHyperLink> PDFHyperLinks::Add(TextView key, const Value& before,
                                                 const Value& after) {
  return InMember("PDFHyperLinks.Add", [&] {
    auto link = std::make_shared<PDFHyperLink>(Internal(), key);
    members_.Add(link, key, before, after);
    return link;
  });
}

void PDFHyperLinks::Remove(const Value& indexOrKey) { members_.Remove(indexOrKey); }

// The links' numbers follow each other, so that the first is all there is to know.
void PDFHyperLinks::NumberObjects(ObjectNumbers& numbers) {
  firstNumber_ = numbers.NextObjectNumber();
  for (std::int32_t i = 0; i < count(); ++i) numbers.Take();
}

//   /Annots [ 12 0 R 13 0 R ]
void PDFHyperLinks::AppendAnnots(const Internal&, PDFText& text) const {
  if (count() == 0) return;
  text.Append("/Annots [ ");
  for (std::int32_t i = 0; i < count(); ++i) text.Append(Reference{firstNumber_ + i}, " ");
  text.Append("]\n");
}

void PDFHyperLinks::WriteObjects(SaveFile& file) {
  std::int32_t number = firstNumber_;
  members_.ForEach([&](const std::shared_ptr<PDFHyperLink>& link) {
    link->BuildAnnotationText(Internal(), file.BeginObject(number++), pages_);
    file.EndObject();
  });
}

}  // namespace folivar
