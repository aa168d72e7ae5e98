#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <string>

#include "tests/hosts/c/Held.h"

namespace folivar::test {
namespace {

// Identifiers of the interface.
constexpr int kDrawText = 11;
constexpr int kWidth = 7;
constexpr int kDrawRect = 17;
constexpr int kGetCurPos = 16;
constexpr int kItem = 0;
constexpr int kPageLayout = 1;

class CArguments : public testing::Test {
 protected:
  int SetWidth(folivar_value value) {
    return folivar_invoke(page.Any(), kWidth, FOLIVAR_SET, &value, 1, nullptr);
  }
  float Width() {
    float width = 0;
    EXPECT_EQ(folivar_PDFPage_Width(page, &width), 0);
    return width;
  }
  // The key of the page at a position.
  std::string KeyAt(folivar_value place) {
    folivar_PDFPage* found = nullptr;
    if (folivar_PDFPages_Item(PagesOf(document), place, &found) != 0) return LastText();
    return KeyOf(Held<folivar_PDFPage>(found));
  }

  Held<folivar_PDFDocument> document = NewDocument();
  Held<folivar_PDFPage> page = AddPage(document, "a");
};

TEST_F(CArguments, NumbersComeInEitherForm) {
  EXPECT_EQ(SetWidth(folivar_integer(300)), 0);
  EXPECT_EQ(Width(), 300);
  EXPECT_EQ(SetWidth(folivar_number(0.1)), 0);
  EXPECT_EQ(Width(), 0.1F);
}

TEST_F(CArguments, OtherKindsAreNoNumbers) {
  EXPECT_EQ(SetWidth(folivar_flag(true)), 13);
  EXPECT_EQ(LastText(), "PDFPage.Width: a number is wanted");
  EXPECT_EQ(SetWidth(folivar_text("12")), 13);
  EXPECT_EQ(SetWidth(folivar_of(page)), 13);
  EXPECT_EQ(SetWidth(folivar_null()), 94);
  EXPECT_EQ(SetWidth(folivar_missing()), 450);
  EXPECT_EQ(Width(), 612);
}

TEST_F(CArguments, NumbersBeyondASingleRaise6) {
  EXPECT_EQ(SetWidth(folivar_number(1e39)), 6);
  EXPECT_EQ(SetWidth(folivar_number(-1e39)), 6);
  EXPECT_EQ(Width(), 612);
  EXPECT_EQ(SetWidth(folivar_number(std::numeric_limits<double>::infinity())), 0);
  EXPECT_TRUE(std::isinf(Width()));
}

TEST_F(CArguments, HalvesOfWholeNumbersAreRoundedToEven) {
  AddPage(document, "b");
  EXPECT_EQ(KeyAt(folivar_number(1.5)), "b");
  EXPECT_EQ(KeyAt(folivar_number(2.5)), "b");
  EXPECT_EQ(KeyAt(folivar_number(0.5)), "PDFPages.Item: position 0 is outside 1 to 2");

  folivar_PDFViewerPreferences* preferences = nullptr;
  ASSERT_EQ(folivar_PDFDocument_ViewerPreferences(document, &preferences), 0);
  const Held<folivar_PDFViewerPreferences> held(preferences);
  folivar_value layout = folivar_number(2.5);
  EXPECT_EQ(folivar_invoke(held.Any(), kPageLayout, FOLIVAR_SET, &layout, 1, nullptr), 0);
  folivar_PDFPageLayoutStyle kept = folivar_plsUserDefault;
  EXPECT_EQ(folivar_PDFViewerPreferences_PageLayout(held, &kept), 0);
  EXPECT_EQ(kept, folivar_plsOneColumn);
  layout = folivar_number(3e9);
  EXPECT_EQ(folivar_invoke(held.Any(), kPageLayout, FOLIVAR_SET, &layout, 1, nullptr), 6);
  layout = folivar_integer(std::int64_t{1} << 40);
  EXPECT_EQ(folivar_invoke(held.Any(), kPageLayout, FOLIVAR_SET, &layout, 1, nullptr), 6);
}

TEST_F(CArguments, ATextIsAKeyAndANumberAPosition) {
  AddPage(document, "1");
  EXPECT_EQ(KeyAt(folivar_text("1")), "1");
  EXPECT_EQ(KeyAt(folivar_integer(1)), "a");
  EXPECT_EQ(KeyAt(folivar_flag(true)), "PDFPages.Item: position or key: a number is wanted");
}

TEST_F(CArguments, WhatIsLeftOutIsLeftOut) {
  folivar_PDFPage* added = nullptr;
  ASSERT_EQ(
      folivar_PDFPages_Add(PagesOf(document), "b", folivar_missing(), folivar_integer(1), &added),
      0);
  folivar_release(added);
  EXPECT_EQ(KeyAt(folivar_integer(2)), "b");
  // A rectangle is stroked and not filled unless told otherwise.
  std::array<folivar_value, 6> box = {folivar_integer(1), folivar_integer(2), folivar_integer(3),
                                      folivar_integer(4), folivar_missing(),  folivar_flag(true)};
  EXPECT_EQ(folivar_invoke(page.Any(), kDrawRect, FOLIVAR_CALL, box.data(), 4, nullptr), 0);
  EXPECT_EQ(folivar_invoke(page.Any(), kDrawRect, FOLIVAR_CALL, box.data(), 6, nullptr), 0);
}

TEST_F(CArguments, TooManyAndTooFewRaise450) {
  std::array<folivar_value, 4> given = {folivar_text("a"), folivar_integer(1), folivar_integer(2),
                                        folivar_integer(3)};
  EXPECT_EQ(folivar_invoke(page.Any(), kDrawText, FOLIVAR_CALL, given.data(), 4, nullptr), 450);
  EXPECT_EQ(LastText(), "PDFPage.DrawText: takes 3 arguments at most, not 4");
  EXPECT_EQ(folivar_invoke(page.Any(), kDrawText, FOLIVAR_CALL, given.data(), 1, nullptr), 450);
  EXPECT_EQ(LastText(), "PDFPage.DrawText: argument 'x': is left out");
  EXPECT_EQ(folivar_invoke(page.Any(), kWidth, FOLIVAR_SET, given.data(), 2, nullptr), 450);
  EXPECT_EQ(folivar_invoke(page.Any(), kWidth, FOLIVAR_SET, nullptr, 0, nullptr), 450);
  EXPECT_EQ(folivar_invoke(PagesOf(document).Any(), kItem, FOLIVAR_GET, nullptr, 0, nullptr), 450);
}

TEST_F(CArguments, TheMemberFillsItsOwn) {
  ASSERT_EQ(folivar_PDFPage_SetCurPos(page, 3, 4.5F), 0);
  float x = 0;
  float y = 0;
  ASSERT_EQ(folivar_PDFPage_GetCurPos(page, &x, &y), 0);
  EXPECT_EQ(x, 3);
  EXPECT_EQ(y, 4.5F);
  std::array<folivar_value, 2> given = {folivar_missing(), folivar_text("anything")};
  ASSERT_EQ(folivar_invoke(page.Any(), kGetCurPos, FOLIVAR_CALL, given.data(), 2, nullptr), 0);
  EXPECT_EQ(given[1].kind, FOLIVAR_NUMBER);
  EXPECT_EQ(given[1].as.number, 4.5);
  EXPECT_EQ(folivar_invoke(page.Any(), kGetCurPos, FOLIVAR_CALL, given.data(), 1, nullptr), 450);
}

TEST_F(CArguments, ObjectsAreOfTheClassThatIsWanted) {
  EXPECT_EQ(folivar_PDFPage_SetThumbnail(page, nullptr), 0);
  EXPECT_EQ(folivar_PDFPage_SetFont(page, nullptr), 91);
  constexpr int kFont = 2;
  folivar_value other = folivar_of(page);
  EXPECT_EQ(folivar_invoke(page.Any(), kFont, FOLIVAR_SET, &other, 1, nullptr), 13);
  EXPECT_EQ(LastText(), "PDFPage.Font: an object is of the wrong class");
  other = folivar_text("Helvetica");
  EXPECT_EQ(folivar_invoke(page.Any(), kFont, FOLIVAR_SET, &other, 1, nullptr), 13);
}

TEST_F(CArguments, ObjectsOfAnotherDocumentRaise5) {
  const auto other = AddPage(NewDocument());
  folivar_PDFBookmarks* bookmarks = nullptr;
  folivar_PDFBookmark* bookmark = nullptr;
  folivar_PDFLinkDestination* destination = nullptr;
  ASSERT_EQ(folivar_PDFDocument_Bookmarks(document, &bookmarks), 0);
  ASSERT_EQ(
      folivar_PDFBookmarks_Add(bookmarks, "", folivar_missing(), folivar_missing(), &bookmark), 0);
  ASSERT_EQ(folivar_PDFBookmark_Destination(bookmark, &destination), 0);
  EXPECT_EQ(folivar_PDFLinkDestination_SetPage(destination, other), 5);
  EXPECT_EQ(LastText(), "PDFLinkDestination.page: belongs to another document");
  EXPECT_EQ(folivar_PDFLinkDestination_SetPage(destination, page), 0);
  folivar_release(destination);
  folivar_release(bookmark);
  folivar_release(bookmarks);
}

TEST_F(CArguments, WhatIsNoKeyIsNoneAndRaisesNothingWhereNothingIsRaised) {
  for (const int kind : std::initializer_list<int>{FOLIVAR_ARRAY, FOLIVAR_HOST, 11, -1}) {
    folivar_value given = folivar_missing();
    given.kind = kind;
    bool isThere = true;
    EXPECT_EQ(folivar_PDFPages_KeyExists(PagesOf(document), given, &isThere), 0);
    EXPECT_FALSE(isThere);
    EXPECT_EQ(folivar_PDFPages_Remove(PagesOf(document), given), 13);
    EXPECT_EQ(folivar_PDFPages_ReOrder(PagesOf(document), "b", given, folivar_missing()), 0);
  }
}

TEST_F(CArguments, TextsMayBeUtf16WithLoneSurrogatesAndNuls) {
  const std::u16string text(u"a\0\xD83D \xD83D\xDE00", 6);
  folivar_value given = folivar_missing();
  given.kind = FOLIVAR_UTF16;
  given.as.utf16 = reinterpret_cast<const std::uint16_t*>(text.data());
  given.with.length = text.size();
  const auto box = AddTextBox(page);
  constexpr int kText = 25;
  ASSERT_EQ(folivar_invoke(box.Any(), kText, FOLIVAR_SET, &given, 1, nullptr), 0) << LastText();

  folivar_value kept;
  ASSERT_EQ(folivar_invoke(box.Any(), kText, FOLIVAR_GET | FOLIVAR_GIVE_UTF16, nullptr, 0, &kept),
            0);
  ASSERT_EQ(kept.kind, FOLIVAR_UTF16);
  EXPECT_EQ(std::u16string(reinterpret_cast<const char16_t*>(kept.as.utf16), kept.with.length),
            text);
  folivar_clear(&kept);
  EXPECT_EQ(kept.kind, FOLIVAR_EMPTY);

  // In UTF-8 a lone surrogate cannot be told.
  ASSERT_EQ(folivar_PDFTextBox_Text(box, &kept), 0);
  EXPECT_EQ(TextOf(kept), std::string("a\0\xEF\xBF\xBD \xF0\x9F\x98\x80", 10));
}

TEST_F(CArguments, TextThatIsNotUtf8Raises5) {
  EXPECT_EQ(folivar_PDFPage_DrawText(page, "a\xFF", 1, 2), 5);
  EXPECT_EQ(folivar_PDFPage_DrawText(page, nullptr, 1, 2), 0);
}

}  // namespace
}  // namespace folivar::test
