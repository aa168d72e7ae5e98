#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>

#include "tests/hosts/c/Held.h"

namespace folivar::test {
namespace {

void CountRelease(void* count) { ++*static_cast<int*>(count); }

folivar_value PointerTo(int& count) {
  folivar_value tag = folivar_missing();
  tag.kind = FOLIVAR_HOST;
  tag.as.host = &count;
  tag.with.release = CountRelease;
  return tag;
}

TEST(CTags, AreEmptyAtFirst) {
  const auto page = AddPage(NewDocument());
  folivar_value tag = folivar_text("something");
  ASSERT_EQ(folivar_PDFPage_Tag(page, &tag), 0);
  EXPECT_EQ(tag.kind, FOLIVAR_EMPTY);
}

TEST(CTags, HoldAnyKind) {
  const auto document = NewDocument();
  const auto page = AddPage(document);
  folivar_value tag;
  ASSERT_EQ(folivar_PDFPage_SetTag(page, folivar_integer(std::int64_t{1} << 40)), 0);
  ASSERT_EQ(folivar_PDFPage_Tag(page, &tag), 0);
  EXPECT_EQ(tag.kind, FOLIVAR_INTEGER);
  EXPECT_EQ(tag.as.integer, std::int64_t{1} << 40);
  ASSERT_EQ(folivar_PDFPage_SetTag(page, folivar_number(0.5)), 0);
  ASSERT_EQ(folivar_PDFPage_Tag(page, &tag), 0);
  EXPECT_EQ(tag.kind, FOLIVAR_NUMBER);
  EXPECT_EQ(tag.as.number, 0.5);
  ASSERT_EQ(folivar_PDFPage_SetTag(page, folivar_flag(true)), 0);
  ASSERT_EQ(folivar_PDFPage_Tag(page, &tag), 0);
  EXPECT_EQ(tag.kind, FOLIVAR_FLAG);
  ASSERT_EQ(folivar_PDFPage_SetTag(page, folivar_null()), 0);
  ASSERT_EQ(folivar_PDFPage_Tag(page, &tag), 0);
  EXPECT_EQ(tag.kind, FOLIVAR_NULL);
  ASSERT_EQ(folivar_PDFPage_SetTag(page, folivar_text("text")), 0);
  ASSERT_EQ(folivar_PDFPage_Tag(page, &tag), 0);
  EXPECT_EQ(TextOf(tag), "text");
  const auto other = AddPage(document, "other");
  ASSERT_EQ(folivar_PDFPage_SetTag(page, folivar_of(other)), 0);
  ASSERT_EQ(folivar_PDFPage_Tag(page, &tag), 0);
  EXPECT_EQ(tag.as.object, other.Any());
  folivar_clear(&tag);
  ASSERT_EQ(folivar_PDFPage_SetTag(page, folivar_missing()), 450);
  // It holds the document of both.
  ASSERT_EQ(folivar_PDFPage_SetTag(page, folivar_null()), 0);
}

TEST(CTags, ObjectsAreHeldWithTheirDocument) {
  const auto document = NewDocument();
  ASSERT_EQ(folivar_PDFDocument_SetTag(document, folivar_of(AddPage(NewDocument(), "other"))), 0);
  folivar_value tag;
  ASSERT_EQ(folivar_PDFDocument_Tag(document, &tag), 0);
  ASSERT_EQ(tag.kind, FOLIVAR_OBJECT);
  auto* page = static_cast<folivar_PDFPage*>(folivar_object_in(tag));
  EXPECT_EQ(KeyOf(page), "other");
  folivar_PDFDocument* parent = nullptr;
  EXPECT_EQ(folivar_PDFPage_ParentDocument(page, &parent), 0) << LastText();
  EXPECT_NE(parent, document);
  folivar_release(parent);
  folivar_clear(&tag);
}

TEST(CTags, AChainOfDocumentsOfAnyLengthMayEnd) {
  auto last = NewDocument();
  for (int i = 0; i < 50000; ++i) {
    auto next = NewDocument();
    ASSERT_EQ(folivar_PDFDocument_SetTag(next, folivar_of(last)), 0);
    last = std::move(next);
  }
}

TEST(CTags, PointersAreReleasedOnceWhenTheyAreNeededNoMore) {
  int first = 0;
  int second = 0;
  {
    const auto document = NewDocument();
    ASSERT_EQ(folivar_PDFDocument_SetTag(document, PointerTo(first)), 0);
    folivar_value tag;
    ASSERT_EQ(folivar_PDFDocument_Tag(document, &tag), 0);
    EXPECT_EQ(tag.kind, FOLIVAR_HOST);
    EXPECT_EQ(tag.as.host, &first);
    EXPECT_EQ(tag.with.release, nullptr);
    folivar_clear(&tag);
    EXPECT_EQ(first, 0);
    ASSERT_EQ(folivar_PDFDocument_SetTag(document, PointerTo(second)), 0);
    EXPECT_EQ(first, 1);
  }
  EXPECT_EQ(first, 1);
  EXPECT_EQ(second, 1);
}

TEST(CTags, PointersThatAreNotTakenAreReleasedToo) {
  const auto page = AddPage(NewDocument());
  int count = 0;
  EXPECT_EQ(folivar_PDFPage_SetTag(nullptr, PointerTo(count)), 91);
  EXPECT_EQ(count, 1);
  constexpr int kWidth = 7;
  folivar_value tag = PointerTo(count);
  EXPECT_EQ(folivar_invoke(page.Any(), kWidth, FOLIVAR_SET, &tag, 1, nullptr), 13);
  EXPECT_EQ(count, 2);
}

}  // namespace
}  // namespace folivar::test
