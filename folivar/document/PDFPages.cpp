#include "folivar/document/PDFPages.h"

#include <utility>

#include "folivar/base/InMember.h"
#include "folivar/base/Internal.h"
#include "folivar/file/ObjectNumbers.h"
#include "folivar/file/PDFText.h"
#include "folivar/file/SaveFile.h"
#include "folivar/fonts/PDFFont.h"

namespace folivar {

PDFPages::PDFPages(const Internal& internal, std::weak_ptr<PDFDocument> document,
                   std::shared_ptr<PDFFont> defaultFont)
    : MemberList(internal, "PDFPages"),
      document_(std::move(document)),
      defaultFont_(std::move(defaultFont)) {}

std::shared_ptr<PDFPage> PDFPages::Add(TextView key, const Value& before, const Value& after) {
  return InMember("PDFPages.Add", [&] {
    auto page =
        std::make_shared<PDFPage>(Internal(), Shared<PDFPages>(), document_, defaultFont_, key);
    members_.Add(page, key, before, after);
    return page;
  });
}

void PDFPages::Remove(const Value& indexOrKey) {
  if (const std::exception_ptr thrown = RemovePage(indexOrKey)) std::rethrow_exception(thrown);
}

std::exception_ptr PDFPages::RemovePage(const Value& indexOrKey) {
  // Handlers may let go of the collection, and of what is given.
  const auto self = Shared<PDFPages>();
  const Value place = indexOrKey;  // NOLINT(performance-unnecessary-copy-initialization)
  const std::shared_ptr<PDFPage> page = InMember("PDFPages.Remove", [&] { return Item(place); });
  std::exception_ptr thrown = page->RaisePageRemoved(Internal());
  // By now it may stand elsewhere, or be removed already.
  members_.RemoveMember(page, place);
  page->ForgetObjectNumber(Internal());
  return thrown;
}

void PDFPages::NumberObjects(const Internal& internal, ObjectNumbers& numbers) {
  treeNode_ = numbers.Take();
  ForEach([&](PDFPage& page) { page.NumberObjects(internal, numbers); });
}

//   3 0 obj
//   << /Type /Pages
//   /Kids [ 4 0 R 6 0 R]
//   /Count 2
//   >>
//   endobj
// The tree is always flat.
void PDFPages::WriteObjects(const Internal& internal, SaveFile& file) {
  PDFText& text = file.BeginObject(treeNode_);
  text.Append("<< /Type /Pages\n/Kids [");
  ForEach([&](PDFPage& page) { text.Append(" ", page.ObjectNumber(internal)); });
  text.Append("]\n/Count ", count(), "\n>>\n");
  file.EndObject();
  ForEach([&](PDFPage& page) { page.WriteObjects(internal, file, treeNode_); });
}

}  // namespace folivar
