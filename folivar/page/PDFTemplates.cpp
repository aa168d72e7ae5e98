#include "folivar/page/PDFTemplates.h"

#include <string>
#include <utility>

#include "folivar/base/InMember.h"
#include "folivar/base/Internal.h"
#include "folivar/fonts/PDFFont.h"

namespace folivar {

PDFTemplates::PDFTemplates(const Internal& internal, std::weak_ptr<PDFDocument> document,
                           std::shared_ptr<PDFFont> defaultFont)
    : MemberList(internal, "PDFTemplates"),
      document_(std::move(document)),
      defaultFont_(std::move(defaultFont)) {}

// Templates are never taken out, so a name that counts them is never given twice.
std::shared_ptr<PDFTemplate> PDFTemplates::Add(TextView key, const Value& before,
                                               const Value& after) {
  return InMember("PDFTemplates.Add", [&] {
    auto added = std::make_shared<PDFTemplate>(Internal(), document_, defaultFont_, key,
                                               "/T" + std::to_string(count() + 1));
    members_.Add(added, key, before, after);
    return added;
  });
}

void PDFTemplates::NumberObjects(const Internal& internal, ObjectNumbers& numbers) {
  ForEach([&](PDFTemplate& member) { member.NumberObjects(internal, numbers); });
}

void PDFTemplates::WriteObjects(const Internal& internal, SaveFile& file) {
  ForEach([&](PDFTemplate& member) { member.WriteObjects(internal, file); });
}

}  // namespace folivar
