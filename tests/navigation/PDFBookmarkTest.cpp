#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "folivar/base/Error.h"
#include "folivar/folivar.h"
#include "folivar/navigation/PDFBookmark.h"
#include "tests/support/Content.h"
#include "tests/support/SavedDocument.h"
#include "tests/support/TestFiles.h"
#include "tests/support/Tools.h"

namespace folivar::test {
namespace {

class PDFBookmarkTest : public testing::Test {
 protected:
  std::string ObjectText(std::size_t number) {
    return std::string(Save(*document_, "bookmark.pdf", Check::kForm).pdf.Object(number));
  }

  // With its keys sorted.
  std::string ObjectAsQpdfHasIt(std::size_t number) {
    const SavedDocument saved = Save(*document_, "bookmark.pdf");
    return test::Run({"qpdf", "--show-object=" + std::to_string(number), saved.path.string()}).out;
  }

  std::shared_ptr<PDFDocument> document_ = PDFDocument::Create();
  std::shared_ptr<PDFPage> page_ = document_->Pages()->Add();
  std::shared_ptr<PDFBookmark> bookmark_ = document_->Bookmarks()->Add("key");
};

TEST_F(PDFBookmarkTest, IsClosedAndWithoutATitleAtFirst) {
  EXPECT_TRUE(bookmark_->Title().IsEmpty());
  EXPECT_FALSE(bookmark_->Expanded());
  EXPECT_EQ(bookmark_->Key(), "key");
  EXPECT_TRUE(bookmark_->Tag().IsEmpty());
  EXPECT_EQ(bookmark_->SubBookmarks()->count(), 0);
  EXPECT_EQ(bookmark_->SubBookmarks(), bookmark_->SubBookmarks());
  EXPECT_EQ(ObjectText(3), "<< /Title ()\n/Parent 2 0 R\n>>\n");
}

TEST_F(PDFBookmarkTest, ClosedWithChildrenCountsThemNegative) {
  for (const char* title : {"a", "b"}) bookmark_->SubBookmarks()->Add()->SetTitle(title);
  EXPECT_EQ(ObjectText(2), "<< /Type /Outlines\n/First 3 0 R\n/Last 3 0 R\n/Count 1\n>>\n");
  EXPECT_EQ(ObjectText(3), "<< /Title ()\n/Parent 2 0 R\n/First 4 0 R\n/Last 5 0 R\n/Count -2>>\n");
  EXPECT_EQ(ObjectText(4), "<< /Title (a)\n/Parent 3 0 R\n/Next 5 0 R\n>>\n");
  EXPECT_EQ(ObjectText(5), "<< /Title (b)\n/Parent 3 0 R\n/Prev 4 0 R\n>>\n");
  bookmark_->SetExpanded(true);
  EXPECT_EQ(ObjectText(2), "<< /Type /Outlines\n/First 3 0 R\n/Last 3 0 R\n/Count 3\n>>\n");
  EXPECT_EQ(ObjectText(3), "<< /Title ()\n/Parent 2 0 R\n/First 4 0 R\n/Last 5 0 R\n/Count 2>>\n");
}

// Deliberate: no line end behind the count.
TEST_F(PDFBookmarkTest, DeliberateCountAndDestinationShareALine) {
  bookmark_->SetTitle("Chapter");
  bookmark_->SetExpanded(true);
  bookmark_->SubBookmarks()->Add();
  bookmark_->SubBookmarks()->Add();
  bookmark_->Destination()->SetPage(page_);
  bookmark_->Destination()->SetDestinationMode(dsFit);
  document_->Bookmarks()->Add();
  EXPECT_EQ(ObjectText(3),
            "<< /Title (Chapter)\n/Parent 2 0 R\n/Next 6 0 R\n/First 4 0 R\n/Last 5 0 R\n"
            "/Count 2/Dest [ 8 0 R /Fit ]\n>>\n");
}

// Deliberate: hosts escape their titles, or have them escaped.
TEST_F(PDFBookmarkTest, DeliberateTitleIsWrittenAsItStands) {
  bookmark_->SetTitle("a(b)");
  EXPECT_EQ(ObjectText(3), "<< /Title (a(b))\n/Parent 2 0 R\n>>\n");
  bookmark_->SetTitle("a\\(b\\n");
  EXPECT_EQ(bookmark_->Title(), "a\\(b\\n");
  EXPECT_EQ(ObjectText(3), "<< /Title (a\\(b\\n)\n/Parent 2 0 R\n>>\n");
}

TEST_F(PDFBookmarkTest, TitlesAreBytesOfTheCodePage) {
  bookmark_->SetTitle(u8"\u00E9 \u20AC \u0416");
  EXPECT_EQ(ObjectText(3), "<< /Title (\xE9 \x80 ?)\n/Parent 2 0 R\n>>\n");
}

TEST_F(PDFBookmarkTest, ATitleThatIsNotUtf8Raises5AndTheOldOneStays) {
  bookmark_->SetTitle("old");
  EXPECT_EQ(ErrorNumberOf([&] { bookmark_->SetTitle("\xFF"); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorTextOf([&] { bookmark_->SetTitle("\xFF"); }),
            "PDFBookmark.Title: text is not UTF-8: invalid byte at position 0 (counted from 0)");
  EXPECT_EQ(bookmark_->Title(), "old");
}

TEST_F(PDFBookmarkTest, AnEscapedTitleIsAStringOfItsOwn) {
  bookmark_->SetTitle(EscapeTitle(":-) \\"));
  EXPECT_EQ(ObjectText(3), "<< /Title (:-\\) \\\\)\n/Parent 2 0 R\n>>\n");
}

TEST_F(PDFBookmarkTest, APlainTitleIsKeptEscaped) {
  bookmark_->SetPlainTitle(":-) \\");
  EXPECT_EQ(bookmark_->Title(), ":-\\) \\\\");
  EXPECT_EQ(ObjectText(3), "<< /Title (:-\\) \\\\)\n/Parent 2 0 R\n>>\n");
  EXPECT_EQ(ErrorTextOf([&] { bookmark_->SetPlainTitle("\xFF"); }),
            "PDFBookmark.SetPlainTitle: text is not UTF-8: invalid byte at position 0 (counted "
            "from 0)");
  EXPECT_EQ(bookmark_->Title(), ":-\\) \\\\") << "it stays";
}

// Deliberate: who sets a title as it stands writes a piece of the file.
TEST_F(PDFBookmarkTest, DeliberateATitleCanCarryAnActionAndAPlainOneCannot) {
  const std::string attack = "Chapter 1) /A << /S /Launch /F (cmd.exe) >> /X (";
  bookmark_->SetTitle(attack);
  EXPECT_EQ(ObjectAsQpdfHasIt(3),
            "<< /A << /F (cmd.exe) /S /Launch >> /Parent 2 0 R /Title (Chapter 1) /X () >>\n");
  bookmark_->SetPlainTitle(attack);
  EXPECT_EQ(ObjectAsQpdfHasIt(3),
            "<< /Parent 2 0 R /Title (Chapter 1\\) /A << /S /Launch /F \\(cmd.exe\\) >> /X \\() "
            ">>\n");
}

// Readers that find the table wrong look for lines that begin an object.
TEST_F(PDFBookmarkTest, NoObjectIsFoundInsideAPlainTitle) {
  bookmark_->SetPlainTitle("a\n99 0 obj\n<< /Hidden true >>\nendobj\n");
  std::string bytes = Save(*document_, "bookmark.pdf").bytes;
  bytes.replace(bytes.find("startxref\n") + 10, 1, "9");
  const auto path = OutputPath("broken");
  WriteBytes(path, bytes);
  const ToolResult shown = test::Run({"qpdf", "--show-object=99", path.string()});
  EXPECT_NE(shown.err.find("reconstruct"), std::string::npos) << shown.err;
  EXPECT_EQ(shown.out, "null\n");
}

}  // namespace
}  // namespace folivar::test
