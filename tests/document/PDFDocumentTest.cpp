#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "folivar/base/Error.h"
#include "folivar/document/PDFDocument.h"
#include "folivar/folivar.h"
#include "tests/support/Content.h"
#include "tests/support/Golden.h"
#include "tests/support/PackagedFonts.h"
#include "tests/support/SavedDocument.h"
#include "tests/support/TestFiles.h"
#include "tests/support/Tools.h"

namespace folivar::test {
namespace {

TEST(PDFDocument, WithoutPages) {
  const auto document = PDFDocument::Create();
  const SavedDocument saved = Save(*document, "no-pages.pdf", Check::kForm);
  ExpectGolden("no-pages.pdf", saved.bytes);
  EXPECT_EQ(saved.pdf.Object(3), "<< /Type /Pages\n/Kids []\n/Count 0\n>>\n");
}

// One page of everything that can be drawn.
TEST(PDFDocument, Drawing) {
  const auto document = PDFDocument::Create();
  const auto preferences = document->ViewerPreferences();
  preferences->SetPageLayout(plsSinglePage);
  preferences->SetPageMode(pmsUseNone);
  preferences->SetFitWindow(true);
  const auto page = document->Pages()->Add("cover");
  const auto state = page->GraphicsState();

  const auto title = document->Fonts()->Add("Times-Bold");
  title->SetSize(24);
  title->SetUnderline(true);
  page->SetFont(title);
  page->DrawText("Folivar (drawing)", 72, 700);

  const auto body = document->Fonts()->Add("Courier");
  body->SetStrikeOut(true);
  page->SetFont(body);
  page->DrawText("first line\nsecond \\ line", 72, 660);
  body->SetStrikeOut(false);
  body->SetSuperscript(true);
  page->DrawText("superscript", 72, 620);
  body->SetSuperscript(false);
  body->SetSubscript(true);
  page->DrawText("subscript", 172, 620);
  body->SetSubscript(false);

  page->DrawRect(72, 480, 300, 100);
  page->DrawTextAligned("left, top", 72, 480, 300, 100, htaLeft, vtaTop);
  page->DrawTextAligned("centre,\nmiddle", 72, 480, 300, 100, htaCenter, vtaCenter);
  page->DrawTextAligned("right, bottom", 72, 480, 300, 100, htaRight, vtaBottom);

  state->Push();
  state->SetLineWidth(2.5F);
  state->SetLineDashPattern(6, 3);
  state->SetStrokeColor(0x0000C0);
  page->DrawLine(72, 440, 372, 440);
  page->DrawLineTo(372, 400);
  state->Pop();

  state->SetFillColor(0x80C000);
  page->DrawRect(72, 340, 60, 40, Paint::kStrokeAndFill);
  state->SetFillGrayColor(0.75F);
  page->DrawRect(152, 340, 60, 40, Paint::kFill);

  state->Push();
  state->Translate(300, 300);
  state->Rotate(30);
  state->ScaleXY(1.5F, 0.5F);
  state->Skew(10, 0);
  page->DrawRect(0, 0, 60, 40);
  state->Pop();

  const SavedDocument saved = Save(*document, "drawing.pdf");
  ExpectGolden("drawing.pdf", saved.bytes);
}

// Pages of their own sizes and faces, with and without a clip box; one is taken out, one moved.
TEST(PDFDocument, Pages) {
  const auto document = PDFDocument::Create();
  const auto pages = document->Pages();
  const auto fonts = document->Fonts();
  pages->Add("letter")->DrawText("Letter", 72, 700);
  const auto a4 = pages->Add("a4");
  a4->SetPageExtents(595.276F, 841.89F);
  a4->SetClipBox(10, 20.5F, 500, 800);
  a4->SetFont(fonts->Add("Times-Italic"));
  a4->DrawText("A4, with a clip box", 72, 700);
  pages->Add("removed")->DrawText("removed", 72, 700);
  const auto wide = pages->Add("wide", "letter");
  wide->SetPageExtents(1000, 300);
  wide->SetFont(fonts->Add("arial-Bold"));
  wide->SetFont(fonts->Add("Symbol"));
  wide->DrawText("abc", 72, 200);
  wide->SetFont(fonts->Add("Courier-BoldOblique"));
  wide->DrawText("Courier", 72, 150);
  pages->Remove("removed");
  pages->ReOrder("a4", 1);
  const SavedDocument saved = Save(*document, "pages.pdf");
  ExpectGolden("pages.pdf", saved.bytes);
}

// Every way to place and decorate text, each in a frame.
TEST(PDFDocument, Text) {
  const auto document = PDFDocument::Create();
  const auto page = document->Pages()->Add();
  const auto font = document->Fonts()->Add("Times-Roman");
  page->SetFont(font);
  for (int column = htaLeft; column <= htaCenter; ++column) {
    for (int row = vtaBaseline; row <= vtaCenter; ++row) {
      const auto left = static_cast<float>(50 + 180 * column);
      const auto bottom = static_cast<float>(680 - 90 * row);
      page->DrawRect(left, bottom, 150, 70);
      page->DrawTextAligned("First line\r\n(second), longer", left, bottom, 150, 70,
                            static_cast<PDFHorzTextAlignment>(column),
                            static_cast<PDFVertTextAlignment>(row));
    }
  }
  float bottom = 340;
  for (int decoration = 0; decoration < 16; ++decoration) {
    font->SetUnderline((decoration & 1) != 0);
    font->SetStrikeOut((decoration & 2) != 0);
    font->SetSubscript((decoration & 4) != 0);
    font->SetSuperscript((decoration & 8) != 0);
    page->DrawText("Text \\ (decorated)\nin two lines", 50, bottom);
    page->DrawTextAligned("aligned", 200, bottom, 100, -10, htaRight, vtaTop);
    bottom -= 20;
  }
  const SavedDocument saved = Save(*document, "text.pdf");
  ExpectGolden("text.pdf", saved.bytes);
}

TEST(PDFDocument, GraphicsState) {
  const auto document = PDFDocument::Create();
  const auto page = document->Pages()->Add();
  const auto state = page->GraphicsState();
  const auto square = [&](float left, float bottom) {
    page->DrawRect(left, bottom, 50, 50, Paint::kStrokeAndFill);
  };
  state->SetFillColor(0x3399FF);
  state->SetStrokeColor(0x993300);
  state->SetLineWidth(4);
  square(50, 700);
  state->SetLineDashPattern(8, 4.5F);
  square(150, 700);
  state->SetFillGrayColor(0.9F);
  state->SetStrokeGrayColor(0.3F);
  square(250, 700);
  state->SetLineDashPattern(1, 0);
  state->Push();
  state->Translate(350, 700);
  state->Rotate(30);
  square(0, 0);
  state->Pop();
  state->Push();
  state->Translate(50, 600);
  state->ScaleXY(1.5F, 0.75F);
  square(0, 0);
  state->Push();
  state->Translate(100, 0);
  state->Skew(20, -10);
  square(0, 0);
  state->Pop();
  state->Pop();
  state->SetTransformationMatrix(0.5F, 0.25F, -0.25F, 0.5F, 350, 600);
  square(0, 0);
  const SavedDocument saved = Save(*document, "graphics-state.pdf");
  ExpectGolden("graphics-state.pdf", saved.bytes);
}

// Three templates, one of them on every page, one on none.
TEST(PDFDocument, Templates) {
  const auto document = PDFDocument::Create();
  const auto templates = document->Templates();
  const auto letterhead = templates->Add("letterhead");
  const auto name = document->Fonts()->Add("Times-BoldItalic");
  name->SetSize(18);
  name->SetUnderline(true);
  letterhead->SetFont(name);
  letterhead->GraphicsState()->SetFillColor(0x5F4E1F);
  letterhead->DrawText("Lamp & Sons (est. 1891)", 0, 0);
  letterhead->DrawTextAligned("lamps\nand shades", 300, -20, 168, 40, htaRight, vtaCenter);
  letterhead->DrawLine(0, -30, 468, -30);

  const auto frame = templates->Add("frame", 1);
  frame->SetAutoSizeClipBox(false);
  frame->SetClipBox(-1, -1, 103, 63);
  frame->GraphicsState()->Push();
  frame->GraphicsState()->SetLineWidth(2);
  frame->GraphicsState()->SetStrokeGrayColor(0.5F);
  frame->DrawRect(0, 0, 102, 62);
  frame->GraphicsState()->Pop();
  frame->DrawLine(-50, 31, 150, 31);

  templates->Add("on no page")->DrawRect(0, 0, 10, 10);

  for (const char* text : {"first page", "second page"}) {
    const auto page = document->Pages()->Add();
    page->DrawTemplate(letterhead, 72, 700);
    page->DrawText(text, 72, 600);
  }
  const auto page = document->Pages()->Item(2);
  page->DrawTemplate(frame, 72, 500.5);
  page->DrawTemplate(frame, 272, 500.5);
  page->DrawTemplate(frame);
  const SavedDocument saved = Save(*document, "templates.pdf");
  ExpectGolden("templates.pdf", saved.bytes);
}

TEST(PDFDocument, SavesTheSameBytesAgain) {
  const auto document = PDFDocument::Create();
  const auto drawn = document->Templates()->Add();
  drawn->DrawText("and again", 0, 0);
  const auto page = document->Pages()->Add();
  page->DrawText("again", 72, 700);
  page->DrawTemplate(drawn, 72, 680);
  EXPECT_EQ(Save(*document, "first.pdf").bytes, Save(*document, "second.pdf").bytes);
}

TEST(PDFDocument, SaveConsumesNothing) {
  const auto document = PDFDocument::Create();
  const auto page = document->Pages()->Add();
  page->DrawText("one", 72, 700);
  Save(*document, "one.pdf");
  page->DrawText("two", 72, 680);
  document->Pages()->Add()->DrawText("three", 72, 700);
  const SavedDocument saved = Save(*document, "all.pdf");
  EXPECT_EQ(TextOf(saved.path), "one\ntwo\n\fthree\n\f");
}

TEST(PDFDocument, ReplacesALongerFileWholly) {
  const auto document = PDFDocument::Create();
  const auto path = OutputPath("replaced.pdf");
  WriteBytes(path, std::string(100000, 'x'));
  document->SavePDFFile(path.u16string());
  const std::string bytes = ReadBytes(path);
  EXPECT_TRUE(bytes.ends_with("%%EOF\n"));
  EXPECT_EQ(bytes.find('x', bytes.find("%%EOF")), std::string::npos);
  EXPECT_LT(bytes.size(), 1000);
}

TEST(PDFDocument, FileNameMayHoldAnyCharacter) {
  const auto document = PDFDocument::Create();
  const auto path = OutputPath("Gr\u00FC\u00DFe \u20AC \U0001F600.pdf");
  document->SavePDFFile(path.u16string());
  EXPECT_TRUE(std::filesystem::exists(path));
}

// A fill of the system's disk is not ours to arrange; the device that is always full is.
TEST(PDFDocument, FullDiskRaises61AndNamesTheFile) {
  const auto document = PDFDocument::Create();
  document->Pages()->Add();
  EXPECT_EQ(ErrorNumberOf([&] { document->SavePDFFile("/dev/full"); }), Error::kDiskFull);
  EXPECT_NE(ErrorTextOf([&] { document->SavePDFFile("/dev/full"); }).find("'/dev/full'"),
            std::string::npos);
}

// Saves onto each name of a file that the document reads, which stays as it is.
void ExpectNotOverwritten(PDFDocument& document, const std::filesystem::path& file) {
  const std::string before = ReadBytes(file);
  const auto link = OutputPath("link");
  std::filesystem::create_symlink(file, link);
  const auto secondName = OutputPath("second name");
  std::filesystem::create_hard_link(file, secondName);
  const auto spelled = file.parent_path() / "." / file.filename();
  for (const auto& target : {file, link, secondName, spelled}) {
    const auto save = [&] { document.SavePDFFile(target.u8string()); };
    EXPECT_EQ(ErrorNumberOf(save), Error::kPermissionDenied);
    EXPECT_EQ(ErrorTextOf(save), "PDFDocument.SavePDFFile: file '" + target.string() +
                                     "': cannot be written: the document reads file '" +
                                     file.string() + "'");
    EXPECT_TRUE(ReadBytes(file) == before) << target;
  }
  const auto twin = OutputPath("twin");
  WriteBytes(twin, before);
  document.SavePDFFile(twin.u8string());
  EXPECT_TRUE(ReadBytes(twin).ends_with("%%EOF\n")) << "it is another file with the same bytes";
}

TEST(PDFDocument, APictureOfItsOwnIsNotOverwritten) {
  const auto document = PDFDocument::Create();
  document->Images()->Add()->SetFileName(DataPath("images/gradient.jpg").u8string());
  const auto picture = OutputPath("picture.jpg");
  WriteBytes(picture, ReadBytes(DataPath("images/gradient.jpg")));
  document->Images()->Add()->SetFileName(picture.u8string());
  ExpectNotOverwritten(*document, picture);
}

TEST(PDFDocument, AFontFileOfItsOwnIsNotOverwritten) {
  const auto file = OutputPath("font.ttf");
  WriteBytes(file, ReadBytes(PackagedFont("liberation/LiberationSans-Regular.ttf")));
  for (const Embedding embedding : {Embedding::kEmbed, Embedding::kNone}) {
    const auto document = PDFDocument::Create();
    document->FontFiles()->AddFile(file.u8string());
    document->Fonts()->Add("Liberation Sans", fontTrueType, embedding);
    ExpectNotOverwritten(*document, file);
  }
}

TEST(PDFDocument, AFontFileThatNoFaceWasTakenFromYetIsNotOverwritten) {
  const auto file = OutputPath("unused.ttf");
  WriteBytes(file, ReadBytes(PackagedFont("liberation/LiberationSans-Regular.ttf")));
  const auto document = PDFDocument::Create();
  document->FontFiles()->AddFile(file.u8string());
  ExpectNotOverwritten(*document, file);
}

// What the target's own errors are does not depend on what the document reads.
TEST(PDFDocument, ATargetThatCannotBeOpenedRaisesItsOwnErrorFirst) {
  const auto document = PDFDocument::Create();
  const auto picture = OutputPath("picture.jpg");
  WriteBytes(picture, ReadBytes(DataPath("images/gradient.jpg")));
  document->Images()->Add()->SetFileName(picture.u8string());
  document->Images()->Add();  // raises 91 when it is numbered
  const auto numberFor = [&](const std::filesystem::path& target) {
    return ErrorNumberOf([&] { document->SavePDFFile(target.u8string()); });
  };
  EXPECT_EQ(numberFor(""), Error::kBadFileName);
  EXPECT_EQ(numberFor(picture.string() + std::string("\0", 1)), Error::kBadFileName);
  EXPECT_EQ(numberFor(picture.parent_path()), Error::kPathFileAccess);
  EXPECT_EQ(numberFor(picture.parent_path() / "missing" / "a.pdf"), Error::kPathNotFound);
  EXPECT_EQ(numberFor(picture), Error::kPermissionDenied);
  EXPECT_EQ(numberFor(OutputPath("unfinished")), Error::kObjectNotSet);
}

TEST(PDFDocument, FailedSaveLeavesTheDocumentUsable) {
  const auto document = PDFDocument::Create();
  document->Pages()->Add()->DrawText("kept", 72, 700);
  EXPECT_EQ(ErrorNumberOf([&] { document->SavePDFFile("/no/such/folder/x.pdf"); }),
            Error::kPathNotFound);
  EXPECT_EQ(TextOf(Save(*document, "kept.pdf").path), "kept\n\f");
}

// Long content is written without being gathered first, short content together; both sides of the
// limit (64 KiB) must give the same form.
TEST(PDFDocument, ContentOfAnySizeIsWritten) {
  const auto document = PDFDocument::Create();
  for (const int lines : {1, 4000, 2113, 2114, 2115, 8192, 20000}) {
    const auto page = document->Pages()->Add();
    for (int i = 0; i < lines; ++i) page->DrawLine(100, 100, 200.5F, 200.25F);
  }
  const SavedDocument saved = Save(*document, "sizes.pdf", Check::kForm);
  const std::string line = "100  100  m\n200.5  200.25  l\nS\n";
  ASSERT_EQ(line.size(), 31U);
  std::string expected;
  for (int i = 0; i < 20000; ++i) expected += line;
  EXPECT_TRUE(saved.pdf.Stream(17) == "q\n" + expected + "Q\n");
}

TEST(PDFDocument, TwoThousandPagesAreAFlatTree) {
  const auto document = PDFDocument::Create();
  for (int i = 1; i <= 2000; ++i) document->Pages()->Add()->DrawText(std::to_string(i), 72, 700);
  const SavedDocument saved = Save(*document, "many.pdf", Check::kForm);
  EXPECT_EQ(saved.pdf.Count(), 3 + 2 * 2000 + 1);
  EXPECT_TRUE(saved.pdf.Object(3).ends_with(" 4000 0 R 4002 0 R]\n/Count 2000\n>>\n"));
  EXPECT_TRUE(saved.pdf.Object(4003).starts_with("<< /Length"));
  const ToolResult pages = test::Run({"qpdf", "--show-npages", saved.path.string()});
  EXPECT_EQ(pages.out, "2000\n");
}

}  // namespace
}  // namespace folivar::test
