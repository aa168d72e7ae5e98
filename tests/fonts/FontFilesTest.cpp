#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "folivar/base/Error.h"
#include "folivar/base/Internal.h"
#include "folivar/folivar.h"
#include "folivar/fonts/PDFFontInfo.h"
#include "tests/support/Content.h"
#include "tests/support/FakeFonts.h"
#include "tests/support/FontBuilder.h"
#include "tests/support/PackagedFonts.h"
#include "tests/support/SavedDocument.h"
#include "tests/support/TestFiles.h"

namespace folivar::test {
namespace {

using std::filesystem::path;

const PDFFontInfo& RecordOf(const PDFFont& font) { return *font.FontInfo(Internal()); }

const path& Regular() {
  static const path file = PackagedFont("liberation/LiberationSans-Regular.ttf");
  return file;
}
const path& Bold() {
  static const path file = PackagedFont("liberation/LiberationSans-Bold.ttf");
  return file;
}

// A document on a system without fonts.
class FontFilesOfADocument : public testing::Test {
 protected:
  FontFilesOfADocument() {
    Platform platform;
    platform.systemFonts = system_;
    platform.warnings =
        Warnings::To([this](const Text& message) { warnings_.push_back(message.Utf8()); });
    document_ = PDFDocument::Create(platform);
    files_ = document_->FontFiles();
    fonts_ = document_->Fonts();
  }

  std::shared_ptr<FakeFonts> system_ = std::make_shared<FakeFonts>();
  std::vector<std::string> warnings_;
  std::shared_ptr<PDFDocument> document_;
  std::shared_ptr<FontFiles> files_;
  std::shared_ptr<PDFFonts> fonts_;
};

TEST_F(FontFilesOfADocument, APipeIs75AndNotWaitedFor) {
  const path fifo = OutputPath("fifo.ttf");
  ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
  const auto add = [&] { files_->AddFile(fifo.u8string()); };
  EXPECT_EQ(ErrorNumberOf(add), Error::kPathFileAccess);
  EXPECT_NE(ErrorTextOf(add).find("'" + fifo.string() + "'"), std::string::npos);
}

TEST_F(FontFilesOfADocument, AddedAfterCreationCountFromThenOn) {
  EXPECT_EQ(ErrorNumberOf([&] { fonts_->Add("Liberation Sans", fontTrueType); }),
            Error::kActionNotSupported);
  files_->AddFile(Regular().u8string());
  EXPECT_EQ(fonts_->Add("Liberation Sans", fontTrueType)->FontFace(), "Liberation Sans");
  EXPECT_TRUE(warnings_.empty());
}

TEST_F(FontFilesOfADocument, AddedBeforeCreationServeSeveralDocuments) {
  Platform platform;
  platform.systemFonts = system_;
  platform.fontFiles = std::make_shared<FontFiles>();
  platform.fontFiles->AddFile(Regular().u8string());
  for (int i = 0; i < 2; ++i) {
    const auto document = PDFDocument::Create(platform);
    EXPECT_EQ(document->FontFiles(), platform.fontFiles);
    EXPECT_EQ(document->Fonts()->Add("liberation sans", fontTrueType)->FontFace(),
              "Liberation Sans");
  }
}

TEST_F(FontFilesOfADocument, WinOverTheSystemsFonts) {
  FakeFace& systems = system_->AddFamily("Liberation Sans");
  systems.metrics.ascent = 1;
  files_->AddFile(Regular().u8string());
  const auto font = fonts_->Add("Liberation Sans", fontTrueType);
  EXPECT_EQ(RecordOf(*font).m_Ascender, 905);
  font->SetBold(true);
  EXPECT_EQ(RecordOf(*font).m_Ascender, 905) << "in the styles that the system alone has, too";
  EXPECT_TRUE(system_->requests.empty());
}

TEST_F(FontFilesOfADocument, TheSystemsSubstituteWinsOverThem) {
  system_->AddFamily("Substitute");
  system_->substitute = "Substitute";
  files_->AddFile(Regular().u8string());
  EXPECT_EQ(fonts_->Add("Nonesuch", fontTrueType)->FontFace(), "Substitute");
}

TEST_F(FontFilesOfADocument, WithoutSystemFontsTheFirstByNameStandsIn) {
  files_->AddFile(PackagedFont("liberation/LiberationSerif-Regular.ttf").u8string());
  files_->AddFile(Regular().u8string());
  EXPECT_EQ(fonts_->Add("Nonesuch", fontTrueType)->FontFace(), "Liberation Sans");
  EXPECT_EQ(warnings_, std::vector<std::string>{"WARNING: Font 'Nonesuch' could not be found.  "
                                                "Using 'Liberation Sans' instead."});
}

TEST_F(FontFilesOfADocument, TheNearestStyleIsTaken) {
  files_->AddFile(Regular().u8string());
  const auto font = fonts_->Add("Liberation Sans", fontTrueType);
  EXPECT_EQ(RecordOf(*font).MeasureWidth("b"), 556);
  const auto thick = font->Clone();
  thick->SetBold(true);
  EXPECT_EQ(RecordOf(*thick).MeasureWidth("b"), 557) << "thickened: there is no bold file";

  files_->AddFile(Bold().u8string());
  files_->AddFile(PackagedFont("liberation/LiberationSans-Italic.ttf").u8string());
  const auto document = PDFDocument::Create({nullptr, system_, files_});
  const auto bold = document->Fonts()->Add("Liberation Sans", fontTrueType);
  bold->SetBold(true);
  EXPECT_EQ(RecordOf(*bold).MeasureWidth("b"), 611);
  bold->SetItalic(true);
  EXPECT_EQ(RecordOf(*bold).MeasureWidth("b"), 557) << "italic counts more than bold";
}

TEST_F(FontFilesOfADocument, OfSeveralWeightsTheNearestIsTaken) {
  for (const auto& [name, weight] :
       std::map<std::string, std::uint32_t>{{"a", 900}, {"b", 400}, {"c", 100}}) {
    FontBuilder font;
    SetU16(font.tables["OS/2"], 4, weight);
    SetU16(font.tables["hmtx"], 4, weight);  // of "A"
    const path file = OutputPath(name + ".ttf");
    WriteBytes(file, font.Build());
    files_->AddFile(file.u8string());
  }
  const auto width = [&](bool isBold) {
    return files_->SelectFace(Text("Test Sans"), isBold, false)->Widths()['A'];
  };
  EXPECT_EQ(width(false), 400);
  EXPECT_EQ(width(true), 901) << "thickened: it does not call itself bold";
}

TEST_F(FontFilesOfADocument, AFaceThatIsAddedAgainIsHereOnce) {
  for (int i = 0; i < 3; ++i) files_->AddFile(Regular().u8string());
  EXPECT_EQ(files_->FaceNames().size(), 1U);
  files_->AddFile(Bold().u8string());
  EXPECT_EQ(files_->FaceNames().size(), 2U);
}

TEST_F(FontFilesOfADocument, AFileThatBecameAnotherFontAddsIt) {
  const path file = OutputPath("font.ttf");
  copy_file(Regular(), file);
  files_->AddFile(file.u8string());
  remove(file);
  copy_file(PackagedFont("dejavu/DejaVuSans.ttf"), file);
  files_->AddFile(file.u8string());
  EXPECT_NE(files_->SelectFace(Text("DejaVu Sans"), false, false), nullptr);
}

TEST_F(FontFilesOfADocument, AFontOfOtherOutlinesIsRefusedWithItsKind) {
  FontBuilder font;
  font.version = 0x4F54544F;  // "OTTO"
  font.tables.erase("glyf");
  const path bare = OutputPath("bare.otf");
  WriteBytes(bare, font.Build());
  font.tables["CFF "] = std::string(4, '\0');
  const path postScript = OutputPath("postscript.otf");
  WriteBytes(postScript, font.Build());
  const auto addBare = [&] { files_->AddFile(bare.u8string()); };
  EXPECT_EQ(ErrorNumberOf(addBare), Error::kInvalidFileFormat);
  EXPECT_EQ(ErrorTextOf(addBare),
            "FontFiles.AddFile: file '" + bare.string() + "': has no TrueType outlines");
  const auto add = [&] { files_->AddFile(postScript.u8string()); };
  EXPECT_EQ(ErrorNumberOf(add), Error::kInvalidFileFormat);
  EXPECT_EQ(ErrorTextOf(add), "FontFiles.AddFile: file '" + postScript.string() +
                                  "': has PostScript outlines, not TrueType's; a .ttf file of the "
                                  "font would do");
}

TEST_F(FontFilesOfADocument, AreListedWithTheSystemsFamiliesEachOnce) {
  system_->AddFamily("LIBERATION SANS");
  system_->AddFamily("Aardvark");
  files_->AddFile(Regular().u8string());
  files_->AddFile(Bold().u8string());
  const std::vector<Text> names = fonts_->AvailableFonts(fontTrueType);
  ASSERT_EQ(names.size(), 2U);
  EXPECT_EQ(names[0], "Aardvark");
  EXPECT_EQ(ErrorNumberOf([&] { files_->AddFile(""); }), Error::kBadFileName);
}

TEST_F(FontFilesOfADocument, AFolderIsReadWithTheFoldersBelowIt) {
  const path folder = OutputPath("fonts");
  create_directories(folder / "below" / "further");
  copy_file(Regular(), folder / "sans.TTF");
  copy_file(PackagedFont("dejavu/DejaVuSans.ttf"), folder / "below" / "further" / "d.ttf");
  WriteBytes(folder / "readme.txt", "no font, and not named like one");
  WriteBytes(folder / "below" / "broken.ttf", "no font");
  const std::vector<Text> leftOut = files_->AddFolder(folder.u8string());
  ASSERT_EQ(leftOut.size(), 1U);
  EXPECT_EQ(leftOut[0],
            "file '" + (folder / "below/broken.ttf").string() + "': damaged font: it is cut short");
  EXPECT_EQ(files_->FaceNames().size(), 2U);
  EXPECT_NE(files_->SelectFace(Text("DejaVu Sans"), false, false), nullptr);
  EXPECT_EQ(files_->SelectFace(Text("Nonesuch"), false, false), nullptr);
}

TEST_F(FontFilesOfADocument, OfTwoFilesInAFolderTheFirstByNameCounts) {
  const path folder = OutputPath("fonts");
  create_directories(folder);
  for (const char* name : {"b.ttf", "c.ttf"}) copy_file(Bold(), folder / name);
  std::string renamed = ReadBytes(Bold());
  renamed += "changed";
  WriteBytes(folder / "a.ttf", renamed);
  EXPECT_TRUE(files_->AddFolder(folder.u8string()).empty());
  EXPECT_EQ(*files_->SelectFace(Text("Liberation Sans"), true, false)->Program(), renamed);
}

TEST_F(FontFilesOfADocument, ARelativeNameStaysGoodWhenTheWorkingFolderChanges) {
  const path file = OutputPath("sans.ttf");
  copy_file(Regular(), file);
  const path before = std::filesystem::current_path();
  std::filesystem::current_path(file.parent_path());
  files_->AddFile("sans.ttf");
  std::filesystem::current_path(before);
  EXPECT_EQ(fonts_->Add("Liberation Sans", fontTrueType, Embedding::kEmbed)->FontFace(),
            "Liberation Sans");
}

TEST_F(FontFilesOfADocument, NamesThatNoFileCanHaveRaise52) {
  for (const std::string_view name : {std::string_view(""), std::string_view("a\0b", 3)}) {
    EXPECT_EQ(ErrorNumberOf([&] { files_->AddFile(name); }), Error::kBadFileName);
    EXPECT_EQ(ErrorNumberOf([&] { files_->AddFolder(name); }), Error::kBadFileName);
  }
  const std::u16string lone = {u'a', 0xD800};
  EXPECT_EQ(ErrorNumberOf([&] { files_->AddFile(lone); }), Error::kBadFileName);
  EXPECT_EQ(ErrorNumberOf([&] { files_->AddFolder(lone); }), Error::kBadFileName);
}

TEST_F(FontFilesOfADocument, AFileWhoseNameIsNotUtf8IsLeftOutAndNamed) {
  const path folder = OutputPath("fonts");
  create_directories(folder);
  copy_file(Regular(), folder / "caf\xE9.ttf");
  const std::vector<Text> leftOut = files_->AddFolder(folder.u8string());
  ASSERT_EQ(leftOut.size(), 1U);
  EXPECT_NE(leftOut[0].Utf8().find("caf?.ttf"), std::string::npos);
}

TEST_F(FontFilesOfADocument, AFontWhoseNamesCannotBeReadIsRefusedAndHidesNoOther) {
  FontBuilder old;
  old.tables["name"] = NameTable({{.encoding = 2, .bytes = "Kanji"}});
  const path alone = OutputPath("old.ttf");
  WriteBytes(alone, old.Build());
  EXPECT_EQ(ErrorTextOf([&] { files_->AddFile(alone.u8string()); }),
            "FontFiles.AddFile: file '" + alone.string() +
                "': has no name of its family that can be read");
  const path collection = OutputPath("both.ttc");
  WriteBytes(collection, BuildCollection({old, FontBuilder()}));
  files_->AddFile(collection.u8string());
  EXPECT_EQ(files_->FaceNames(), std::vector<Text>{Text("Test Sans")});
}

TEST_F(FontFilesOfADocument, AFamilyWhoseFileHasGoneIsNotListedAsEmbeddable) {
  const path file = OutputPath("gone.ttf");
  copy_file(Regular(), file);
  files_->AddFile(file.u8string());
  files_->AddFile(PackagedFont("dejavu/DejaVuSans.ttf").u8string());
  remove(file);
  const std::vector<Text> names = fonts_->AvailableFonts(fontTrueType, Embedding::kEmbed);
  ASSERT_EQ(names.size(), 1U);
  EXPECT_EQ(names[0], "DejaVu Sans");
}

TEST_F(FontFilesOfADocument, WhatCannotBeAddedRaisesAndAddsNothing) {
  const path broken = OutputPath("broken.ttf");
  WriteBytes(broken, ReadBytes(Regular()).substr(0, 100'000));
  EXPECT_EQ(ErrorNumberOf([&] { files_->AddFile(broken.u8string()); }), Error::kInvalidFileFormat);
  const std::string text = ErrorTextOf([&] { files_->AddFile(broken.u8string()); });
  EXPECT_NE(text.find("'" + broken.string() + "'"), std::string::npos) << text;
  EXPECT_EQ(ErrorNumberOf([&] { files_->AddFile("no/such.ttf"); }), Error::kFileNotFound);
  EXPECT_EQ(ErrorNumberOf([&] { files_->AddFolder("no/such"); }), Error::kPathNotFound);
  EXPECT_EQ(ErrorNumberOf([&] { files_->AddFolder(Regular().u8string()); }), Error::kPathNotFound);
  EXPECT_TRUE(files_->FaceNames().empty());
}

TEST_F(FontFilesOfADocument, AFileThatIsGoneWhenItsFaceIsAddedRaises53AndNamesIt) {
  const path file = OutputPath("gone.ttf");
  copy_file(Regular(), file);
  files_->AddFile(file.u8string());
  remove(file);
  const auto add = [&] { fonts_->Add("Liberation Sans", fontTrueType, Embedding::kEmbed); };
  EXPECT_EQ(ErrorNumberOf(add), Error::kFileNotFound);
  EXPECT_NE(ErrorTextOf(add).find("'" + file.string() + "'"), std::string::npos);
  EXPECT_EQ(fonts_->count(fontTrueType), 0);
}

TEST_F(FontFilesOfADocument, AFontThatForbidsEmbeddingWarnsAndIsNotEmbedded) {
  std::string bytes = ReadBytes(Regular());
  const std::size_t record = bytes.find("OS/2");
  ASSERT_LT(record, 400U);
  std::size_t table = 0;
  for (std::size_t i = record + 8; i < record + 12; ++i) {
    table = table << 8 | static_cast<unsigned char>(bytes[i]);
  }
  bytes.replace(table + 8, 2, std::string_view("\0\2", 2));
  const path file = OutputPath("restricted.ttf");
  WriteBytes(file, bytes);
  files_->AddFile(file.u8string());

  EXPECT_TRUE(fonts_->AvailableFonts(fontTrueType, Embedding::kEmbed).empty());
  EXPECT_EQ(fonts_->AvailableFonts(fontTrueType).size(), 1U);
  const auto page = document_->Pages()->Add();
  page->SetFont(fonts_->Add("Liberation Sans", fontTrueType, Embedding::kEmbed));
  page->DrawText("Not embedded", 72, 700);
  EXPECT_EQ(warnings_, std::vector<std::string>{"WARNING: Font Liberation Sans is not licensed for "
                                                "embedding.  The font will not be embedded in the "
                                                "PDF file."});
  const SavedDocument saved = Save(*document_, "restricted.pdf");
  EXPECT_EQ(saved.bytes.find("/FontFile2"), std::string::npos);
}

TEST_F(FontFilesOfADocument, TheEmbeddedProgramIsTheFileItself) {
  files_->AddFile(Regular().u8string());
  fonts_->Add("Liberation Sans", fontTrueType, Embedding::kEmbed);
  const SavedDocument saved = Save(*document_, "embedded.pdf");
  // Catalog, outline, page tree, Helvetica; then face, descriptor and program.
  EXPECT_EQ(saved.pdf.Stream(7), ReadBytes(Regular()));
}

}  // namespace
}  // namespace folivar::test
