#include "folivar/images/PDFImages.h"

#include <string>
#include <utility>

#include "folivar/base/InMember.h"
#include "folivar/base/Internal.h"

namespace folivar {

PDFImages::PDFImages(const Internal& internal, std::weak_ptr<PDFDocument> document)
    : MemberList(internal, "PDFImages"), document_(std::move(document)) {}

// The first image is "/I1".
std::shared_ptr<PDFImage> PDFImages::Add(TextView key, const Value& before, const Value& after) {
  return InMember("PDFImages.Add", [&] {
    auto image =
        std::make_shared<PDFImage>(Internal(), document_, key, "/I" + std::to_string(count() + 1));
    members_.Add(image, key, before, after);
    return image;
  });
}

void PDFImages::NumberObjects(const Internal& internal, ObjectNumbers& numbers) {
  ForEach([&](PDFImage& image) { image.NumberObjects(internal, numbers); });
}

void PDFImages::WriteObjects(const Internal& internal, SaveFile& file) const {
  ForEach([&](const PDFImage& image) { image.WriteObjects(internal, file); });
}

}  // namespace folivar
