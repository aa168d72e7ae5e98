#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "tests/hosts/c/Held.h"
#include "tests/support/Random.h"
#include "tests/support/TestFiles.h"

namespace folivar::test {
namespace {

TEST(CLibrary, CreatesDocumentsAlone) {
  folivar_object* object = nullptr;
  EXPECT_EQ(folivar_create("PDFPage", nullptr, &object), 5);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(LastText(), "no class 'PDFPage' can be created");
  EXPECT_EQ(folivar_create(nullptr, nullptr, &object), 5);
}

TEST(CLibrary, SameObjectIsTheSamePointerAndKeepsItsSlot) {
  const auto document = NewDocument();
  int place = 0;
  const void* address = nullptr;
  {
    const auto page = AddPage(document, "a");
    folivar_PDFPage* again = nullptr;
    ASSERT_EQ(folivar_PDFPages_Item(PagesOf(document), folivar_text("A"), &again), 0);
    EXPECT_EQ(again, page);
    folivar_release(again);
    EXPECT_EQ(*folivar_slot(page.Any()), nullptr);
    *folivar_slot(page.Any()) = &place;
    address = page;
  }
  folivar_PDFPage* again = nullptr;
  ASSERT_EQ(folivar_PDFPages_Item(PagesOf(document), folivar_integer(1), &again), 0);
  EXPECT_EQ(again, address);
  EXPECT_EQ(*folivar_slot(folivar_any(again)), &place);
  folivar_release(again);
}

TEST(CLibrary, HeldObjectsKeepTheirDocument) {
  const std::string path = OutputPath("kept.pdf").string();
  const auto page = [] { return AddPage(NewDocument(), "a"); }();
  folivar_PDFDocument* document = nullptr;
  ASSERT_EQ(folivar_PDFPage_ParentDocument(page, &document), 0) << LastText();
  const Held<folivar_PDFDocument> held(document);
  EXPECT_EQ(folivar_document(page.Any()), held.Any());
  EXPECT_EQ(folivar_document(held.Any()), held.Any());
  EXPECT_EQ(folivar_PDFDocument_SavePDFFile(document, path.c_str()), 0) << LastText();
}

TEST(CLibrary, HeldTextBoxesKeepTheirPageRemovedOrNot) {
  const auto box = [] {
    const auto document = NewDocument();
    auto made = AddTextBox(AddPage(document, "a"));
    EXPECT_EQ(folivar_PDFPages_Remove(PagesOf(document), folivar_text("a")), 0);
    return made;
  }();
  folivar_object* parent = nullptr;
  ASSERT_EQ(folivar_PDFTextBox_Parent(box, &parent), 0) << LastText();
  EXPECT_STREQ(folivar_class_of(parent)->name, "PDFPage");
  EXPECT_EQ(KeyOf(FOLIVAR_CAST(folivar_PDFPage*, FOLIVAR_CAST(void*, parent))), "a");
  folivar_release(parent);
}

TEST(CLibrary, ObjectsAreLetGoOfInAnyOrder) {
  Random random;
  SCOPED_TRACE(random.Trace());
  for (int round = 0; round < 200; ++round) {
    auto document = NewDocument();
    std::vector<std::unique_ptr<folivar_object, void (*)(void*)>> held;
    const auto hold = [&](void* object) {
      held.emplace_back(folivar_any(object), folivar_release);
    };
    folivar_PDFGraphicsState* state = nullptr;
    folivar_PDFFont* font = nullptr;
    folivar_PDFPage* page = nullptr;
    folivar_PDFPages* pages = nullptr;
    ASSERT_EQ(folivar_PDFDocument_Pages(document, &pages), 0);
    hold(pages);
    for (int i = 0; i < 3; ++i) {
      ASSERT_EQ(folivar_PDFPages_Add(pages, "", folivar_missing(), folivar_missing(), &page), 0);
      hold(page);
      ASSERT_EQ(folivar_PDFPage_Font(page, &font), 0);
      hold(font);
      ASSERT_EQ(folivar_PDFPage_GraphicsState(page, &state), 0);
      hold(state);
      folivar_retain(page);
      hold(page);
    }
    ASSERT_EQ(folivar_PDFPages_Remove(pages, folivar_integer(2)), 0);
    document = Held<folivar_PDFDocument>();
    while (!held.empty()) {
      held.erase(held.begin() + static_cast<std::ptrdiff_t>(random.Below(held.size())));
    }
  }
}

TEST(CLibrary, NothingStaysOfTenThousandDocuments) {
  for (int i = 0; i < 10000; ++i) {
    const auto document = NewDocument();
    const auto page = AddPage(document, "a");
    const auto box = AddTextBox(page);
    ASSERT_EQ(folivar_PDFTextBox_SetText(box, "some text"), 0);
    ASSERT_EQ(folivar_PDFPage_SetTag(page, folivar_text("tag")), 0);
    ASSERT_EQ(KeyOf(page), "a");
    ASSERT_EQ(folivar_PDFPage_DrawTemplate(page, nullptr, folivar_missing(), folivar_missing()),
              91);
  }
}

TEST(CLibrary, UnknownMembersAndActionsRaise438) {
  const auto page = AddPage(NewDocument());
  folivar_value result;
  for (const int id : {-5, -1, 0, 23, 1000, -2147483647 - 1, 2147483647}) {
    EXPECT_EQ(folivar_invoke(page.Any(), id, FOLIVAR_CALL, nullptr, 0, &result), 438) << id;
  }
  constexpr int kWidth = 7;
  constexpr int kKey = 1;
  EXPECT_EQ(folivar_invoke(page.Any(), kWidth, FOLIVAR_CALL, nullptr, 0, &result), 438);
  EXPECT_EQ(LastText(), "PDFPage.Width: cannot be used so");
  EXPECT_EQ(folivar_invoke(page.Any(), kWidth, FOLIVAR_GET | FOLIVAR_SET, nullptr, 0, &result),
            438);
  EXPECT_EQ(folivar_invoke(page.Any(), kWidth, 0, nullptr, 0, &result), 438);
  folivar_value key = folivar_text("b");
  EXPECT_EQ(folivar_invoke(page.Any(), kKey, FOLIVAR_SET, &key, 1, nullptr), 438);
}

TEST(CLibrary, ErrorsTellMemberObjectAndCause) {
  const auto document = NewDocument();
  ASSERT_EQ(folivar_PDFDocument_SavePDFFile(document, "no such folder/a.pdf"), 76);
  const folivar_error* error = folivar_last_error();
  EXPECT_EQ(error->number, 76);
  EXPECT_STREQ(error->member, "PDFDocument.SavePDFFile");
  EXPECT_STREQ(error->object, "file 'no such folder/a.pdf'");
  EXPECT_STREQ(error->cause, "cannot be written: No such file or directory");
  EXPECT_EQ(error->text, std::string(error->member) + ": " + error->object + ": " + error->cause);
}

TEST(CLibrary, ANullObjectRaises91) {
  EXPECT_EQ(folivar_PDFPage_DrawText(nullptr, "a", 1, 2), 91);
  folivar_release(nullptr);
  folivar_retain(nullptr);
  std::int64_t subscription = 7;
  const folivar_callback handler = {nullptr, nullptr, nullptr};
  EXPECT_EQ(folivar_subscribe(nullptr, 1, &handler, &subscription), 91);
  EXPECT_EQ(folivar_unsubscribe(nullptr, 1), 91);
}

}  // namespace
}  // namespace folivar::test
