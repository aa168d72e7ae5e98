// What comes across the boundary when memory runs out: error 7, and nothing is kept or released
// twice. Each allocation of a call fails in turn.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>

#include "tests/faults/FailingNew.h"
#include "tests/hosts/c/Held.h"

namespace folivar::test {
namespace {

// Calls `call`, which returns the number of an error, until it succeeds, each time with a later
// allocation failing. Returns how often it has failed.
template <class Call>
int FailInTurn(Call call) {
  for (int number = 1;; ++number) {
    std::int32_t error = 0;
    {
      const FailingNew failing(static_cast<std::size_t>(number));
      error = call();
    }
    if (error == 0) return number - 1;
    EXPECT_EQ(error, 7);
    EXPECT_EQ(LastText(), "Out of memory");
    EXPECT_EQ(folivar_last_error()->number, 7);
  }
}

void CountRelease(void* count) { ++*static_cast<int*>(count); }

TEST(CMemory, DocumentsGiveTheirCallbackBack) {
  int released = 0;
  const folivar_callback warnings = {nullptr, CountRelease, &released};
  folivar_PDFDocument* document = nullptr;
  const int failures = FailInTurn([&] { return folivar_PDFDocument_new(&warnings, &document); });
  EXPECT_GT(failures, 5);
  EXPECT_EQ(released, failures);
  folivar_release(document);
  EXPECT_EQ(released, failures + 1);
}

TEST(CMemory, TagsGiveTheirPointerBack) {
  const auto document = NewDocument();
  int released = 0;
  const int failures = FailInTurn([&] {
    folivar_value tag = folivar_missing();
    tag.kind = FOLIVAR_HOST;
    tag.as.host = &released;
    tag.with.release = CountRelease;
    return folivar_PDFDocument_SetTag(document, tag);
  });
  EXPECT_GT(failures, 1);
  EXPECT_EQ(released, failures);
}

TEST(CMemory, SubscriptionsGiveTheirCallbackBack) {
  const auto page = AddPage(NewDocument());
  int released = 0;
  const folivar_callback handler = {nullptr, CountRelease, &released};
  std::int64_t subscription = 0;
  const int failures = FailInTurn([&] {
    return folivar_subscribe(page.Any(), folivar_PDFPage_PageRemoved, &handler, &subscription);
  });
  EXPECT_GT(failures, 1);
  EXPECT_EQ(released, failures);
}

TEST(CMemory, ResultsAreWholeOrNone) {
  const auto document = NewDocument();
  AddPage(document, "a");
  AddPage(document, "b");
  folivar_value result;
  EXPECT_GT(FailInTurn([&] { return folivar_PDFPages_NewEnum(PagesOf(document), &result); }), 1);
  ASSERT_EQ(result.kind, FOLIVAR_ARRAY);
  EXPECT_EQ(result.with.length, 2U);
  folivar_clear(&result);

  const auto page = AddPage(document, "c");
  EXPECT_GT(FailInTurn([&] { return folivar_PDFPage_Key(page, &result); }), 0);
  EXPECT_EQ(TextOf(result), "c");
  folivar_PDFTextBoxes* boxes = nullptr;
  EXPECT_GT(FailInTurn([&] { return folivar_PDFPage_TextBoxes(page, &boxes); }), 1);
  folivar_release(boxes);
}

}  // namespace
}  // namespace folivar::test
