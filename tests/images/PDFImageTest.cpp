#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "folivar/base/Error.h"
#include "folivar/folivar.h"
#include "folivar/images/PDFImage.h"
#include "tests/support/BmpFile.h"
#include "tests/support/Content.h"
#include "tests/support/Golden.h"
#include "tests/support/SavedDocument.h"
#include "tests/support/TestFiles.h"

namespace folivar::test {
namespace {

const std::string kBlue = PaletteEntry(0x0000FF);
const std::string kRed = PaletteEntry(0xFF0000);

// A document with one image, which a page shows.
class PDFImageInADocument : public testing::Test {
 protected:
  // Writes a file of this test and gives it to the image; the number of the error, 0 for none.
  int FileNameError(std::string_view name, std::string_view bytes) {
    WriteBytes(OutputPath(name), bytes);
    return FileNameError(OutputFolder() / name);
  }
  int FileNameError(const std::filesystem::path& path) {
    return ErrorNumberOf([&] { image_->SetFileName(path.u8string()); });
  }
  std::string FileNameErrorText(TextView name) {
    return ErrorTextOf([&] { image_->SetFileName(name); });
  }

  static std::filesystem::path OutputFolder() { return OutputPath("none").parent_path(); }
  static std::string Jpeg() { return ReadBytes(DataPath("images/gradient.jpg")); }
  static std::string Bmp() { return BmpFile{.width = 3, .height = 2, .pixels = kRows}.Bytes(); }

  SavedDocument SaveWithPage(std::string_view name) {
    if (document_->Pages()->count() == 0) document_->Pages()->Add()->DrawImage(image_, 72, 600);
    return Save(*document_, name);
  }

  static constexpr const char* kRows = "bgrBGRxyz...123456789...";
  std::shared_ptr<PDFDocument> document_ = PDFDocument::Create();
  std::shared_ptr<PDFImage> image_ = document_->Images()->Add("logo");
};

TEST_F(PDFImageInADocument, StartsWithoutAFile) {
  EXPECT_EQ(image_->FileName(), "");
  EXPECT_EQ(image_->Width(), 0);
  EXPECT_EQ(image_->Height(), 0);
  EXPECT_FALSE(image_->Interpolate());
  EXPECT_EQ(image_->Key(), "logo");
  EXPECT_TRUE(image_->Tag().IsEmpty());
  image_->SetTag("my own");
  EXPECT_EQ(*image_->Tag().As<Text>(), "my own");
}

TEST_F(PDFImageInADocument, JpegIsWrittenAsItIs) {
  ASSERT_EQ(FileNameError(DataPath("images/gradient.jpg")), 0);
  EXPECT_EQ(image_->Width(), 16);
  EXPECT_EQ(image_->Height(), 12);
  EXPECT_EQ(image_->FileName(), Text(DataPath("images/gradient.jpg").u8string()));
  const SavedDocument saved = SaveWithPage("jpeg.pdf");
  const std::string jpeg = Jpeg();
  EXPECT_EQ(saved.pdf.Object(6),
            "<< /Type /XObject\n/Subtype /Image\n/Name /I1\n/Width 16 \n/Height 12 \n"
            "/ColorSpace /DeviceRGB\n/BitsPerComponent 8\n/Interpolate false\n"
            "/Filter /DCTDecode\n/Length " +
                std::to_string(jpeg.size()) + " >>\nstream\n" + jpeg + "\nendstream\n");
}

TEST_F(PDFImageInADocument, BmpHasAnEmptyLineInPlaceOfTheFilter) {
  ASSERT_EQ(FileNameError("a.bmp", Bmp()), 0);
  EXPECT_EQ(image_->Width(), 3);
  EXPECT_EQ(image_->Height(), 2);
  const SavedDocument saved = SaveWithPage("bmp.pdf");
  EXPECT_EQ(saved.pdf.Object(6),
            "<< /Type /XObject\n/Subtype /Image\n/Name /I1\n/Width 3 \n/Height 2 \n"
            "/ColorSpace /DeviceRGB\n/BitsPerComponent 8\n/Interpolate false\n"
            "\n/Length 18 >>\nstream\n321654987rgbRGBzyx\nendstream\n");
}

TEST_F(PDFImageInADocument, InterpolateIsWritten) {
  ASSERT_EQ(FileNameError("a.bmp", Bmp()), 0);
  image_->SetInterpolate(true);
  EXPECT_TRUE(image_->Interpolate());
  const SavedDocument saved = SaveWithPage("interpolate.pdf");
  EXPECT_NE(saved.pdf.Object(6).find("\n/Interpolate true\n"), std::string_view::npos);
}

// Files of all kinds, by their bytes alone: a page, its thumbnail, images drawn in every way.
TEST_F(PDFImageInADocument, Golden) {
  WriteBytes(OutputPath("a.bmp"), Bmp());
  image_->SetFileName((OutputFolder() / "a.bmp").u8string());
  const auto images = document_->Images();
  const auto add = [&](std::string_view name, BmpFile bmp, std::string_view key = {}) {
    WriteBytes(OutputPath(name), bmp.Bytes());
    auto image = images->Add(key);
    image->SetFileName((OutputFolder() / name).u8string());
    return image;
  };
  const auto indexed =
      add("indexed.bmp",
          {.width = 6,
           .height = 2,
           .bits = 4,
           .palette = kBlue + kRed + kBlue + kRed + kRed + kBlue + kRed + kBlue + kBlue + kRed,
           .pixels = "SUV.EDU.",
           .colorsUsed = 10},
          "indexed");
  std::string greys;
  for (std::uint32_t i = 0; i < 256; ++i) greys += PaletteEntry(i * 0x010101);
  const auto grey =
      add("grey.BMP", {.width = 4, .height = 2, .bits = 8, .palette = greys, .pixels = "~~aaPP00"});
  grey->SetInterpolate(true);
  const auto unused =
      add("black.bmp",
          {.width = 32, .height = 1, .bits = 1, .palette = kBlue + kRed, .pixels = "UUUU"});
  const auto page = document_->Pages()->Add();
  page->SetThumbnail(grey);
  page->DrawImage(indexed, 72, 600, 60, 60);
  page->DrawImage(image_, 72, 500, 90, 90);
  page->DrawImage(image_, 72, 400, 90, 90, AspectRatio::kStretch);
  page->DrawImage(grey, 72.5F, 300.25F);
  document_->Pages()->Add()->DrawImage(image_, 0, 0);
  ExpectGolden("images.pdf", Save(*document_, "images.pdf").bytes);
}

TEST_F(PDFImageInADocument, ExtensionCountsInAnyCase) {
  for (const char* name : {"a.jpg", "b.JPG", "c.JpEg", "d.jpeg", "e.f.g.jpg", ".jpg"}) {
    EXPECT_EQ(FileNameError(name, Jpeg()), 0) << name;
    EXPECT_EQ(image_->Width(), 16) << name;
  }
  EXPECT_EQ(FileNameError("a.bMp", Bmp()), 0);
  EXPECT_EQ(image_->Width(), 3);
}

TEST_F(PDFImageInADocument, OtherExtensionsAreUnknownTypes) {
  for (const char* name : {"a.png", "a.gif", "a.GIF", "a.tif", "a.tiff", "jpg", "bmp", "a.",
                           "a.jpg ", "a.jpgx", "a.jp", "a.bmp.txt"}) {
    EXPECT_EQ(FileNameError(name, Jpeg()), Error::kUnknownImageType) << name;
  }
  // Only the name counts, so the file need not be there.
  const std::string advice =
      " (JPEG and uncompressed BMP files can be read: convert it to one of them)";
  EXPECT_EQ(FileNameErrorText("no/such.folder/picture"),
            "Error: Image type unknown for no/such.folder/picture." + advice);
  EXPECT_EQ(FileNameErrorText("Gr\u00FC\u00DFe.png"),
            "Error: Image type unknown for Gr\u00FC\u00DFe.png." + advice);
  EXPECT_EQ(FileNameErrorText(""), "Error: Image type unknown for ." + advice);
}

TEST_F(PDFImageInADocument, AnExtensionBeyond16BitsRaises6) {
  const std::string name = std::string(32767, 'a') + ".jpg";
  EXPECT_EQ(ErrorNumberOf([&] { image_->SetFileName(name); }), Error::kOverflow);
  EXPECT_EQ(FileNameErrorText(name).find("PDFImage.FileName: "), 0U);
  EXPECT_EQ(image_->FileName(), "");
}

TEST_F(PDFImageInADocument, JpegWithoutAFrameHeaderIsAnUnknownType) {
  EXPECT_EQ(FileNameError("a.jpg", Bmp()), Error::kUnknownImageType);
  const std::string name = (OutputFolder() / "a.jpg").string();
  EXPECT_TRUE(FileNameErrorText(name).starts_with("Error: Image type unknown for " + name + ". ("));
}

TEST_F(PDFImageInADocument, BmpOfAnotherFormatIsNamedWithItsFile) {
  EXPECT_EQ(FileNameError("a.bmp", Jpeg()), Error::kUnknownImageType);
  const std::string name = (OutputFolder() / "a.bmp").string();
  const std::string text = FileNameErrorText(name);
  EXPECT_TRUE(text.starts_with("Unknown BMP format (")) << text;
  EXPECT_NE(text.find(", in file '" + name + "'; "), std::string::npos) << text;
}

TEST_F(PDFImageInADocument, FileThatCannotBeReadIsNamed) {
  EXPECT_EQ(FileNameErrorText("no/such/file.jpg"),
            "PDFImage.FileName: file 'no/such/file.jpg': does not exist");
  EXPECT_EQ(FileNameError("no/such/file.jpg"), Error::kFileNotFound);
  EXPECT_EQ(FileNameError(OutputFolder() / "missing.bmp"), Error::kFileNotFound);
  EXPECT_EQ(FileNameError("file.jpg", Jpeg()), 0);
  EXPECT_EQ(FileNameError(OutputFolder() / "file.jpg" / "below.jpg"), Error::kFileNotFound);
  // A folder exists.
  std::filesystem::create_directory(OutputPath("folder.bmp"));
  EXPECT_EQ(FileNameError(OutputFolder() / "folder.bmp"), Error::kPathFileAccess);
  EXPECT_EQ(ErrorNumberOf([&] { image_->SetFileName("\xFF.jpg"); }), Error::kInvalidArgument);
}

TEST_F(PDFImageInADocument, RefusedFileLeavesTheImageAsItWas) {
  ASSERT_EQ(FileNameError("kept.bmp", Bmp()), 0);
  const Text kept = image_->FileName();
  const std::string before = SaveWithPage("before.pdf").bytes;
  EXPECT_EQ(FileNameError("other.png", Jpeg()), Error::kUnknownImageType);
  EXPECT_EQ(FileNameError("other.jpg", "no picture"), Error::kUnknownImageType);
  EXPECT_EQ(FileNameError("other.bmp", BmpFile{.height = -1}.Bytes()), Error::kUnknownImageType);
  EXPECT_EQ(FileNameError("wide.jpg", "\xFF\xC0\x1\x1\x8\x1\x1\xFF\xFF"), Error::kOverflow);
  EXPECT_EQ(FileNameError(OutputFolder() / "missing.jpg"), Error::kFileNotFound);
  EXPECT_EQ(image_->FileName(), kept);
  EXPECT_EQ(image_->Width(), 3);
  EXPECT_EQ(image_->Height(), 2);
  EXPECT_EQ(SaveWithPage("after.pdf").bytes, before);
}

TEST_F(PDFImageInADocument, AnotherFileTakesThePlaceOfTheFirst) {
  ASSERT_EQ(FileNameError("a.bmp", Bmp()), 0);
  SaveWithPage("bmp.pdf");
  ASSERT_EQ(FileNameError(DataPath("images/gradient.jpg")), 0);
  EXPECT_EQ(image_->Width(), 16);
  EXPECT_EQ(std::string(SaveWithPage("jpeg.pdf").pdf.Stream(6)), Jpeg());
}

TEST_F(PDFImageInADocument, WithoutAFileTheSaveRaises91AndNamesTheImage) {
  EXPECT_EQ(ErrorNumberOf([&] { document_->SavePDFFile(OutputPath("broken").u8string()); }),
            Error::kObjectNotSet);
  EXPECT_EQ(ErrorTextOf([&] { document_->SavePDFFile(OutputPath("broken").u8string()); }),
            "PDFDocument.SavePDFFile: PDFImage 'logo': was never given a file");
  ASSERT_EQ(FileNameError("a.bmp", Bmp()), 0);
  document_->Images()->Add();
  EXPECT_EQ(ErrorTextOf([&] { document_->SavePDFFile(OutputPath("broken").u8string()); }),
            "PDFDocument.SavePDFFile: PDFImage /I2: was never given a file");
}

TEST_F(PDFImageInADocument, FileThatHasGoneRaises53AtTheSave) {
  ASSERT_EQ(FileNameError("a.bmp", Bmp()), 0);
  std::filesystem::remove(OutputFolder() / "a.bmp");
  const auto save = [&] { document_->SavePDFFile(OutputPath("broken").u8string()); };
  EXPECT_EQ(ErrorNumberOf(save), Error::kFileNotFound);
  EXPECT_EQ(ErrorTextOf(save), "PDFDocument.SavePDFFile: file '" +
                                   (OutputFolder() / "a.bmp").string() + "': does not exist");
  // It comes back, and all is well.
  WriteBytes(OutputFolder() / "a.bmp", Bmp());
  EXPECT_EQ(SaveWithPage("sound.pdf").pdf.Stream(6), "321654987rgbRGBzyx");
}

// Never is a stream shorter than its dictionary says: such a file has no end.
TEST_F(PDFImageInADocument, FileThatBecameShorterRaises62AtTheSave) {
  for (const std::string& bytes : {Jpeg(), Bmp().substr(0, Bmp().size() - 3)}) {
    const char* name = bytes == Jpeg() ? "a.jpg" : "a.bmp";
    ASSERT_EQ(FileNameError(name, bytes), 0);
    for (const std::size_t size : {bytes.size() - 1, bytes.size() / 2, std::size_t{0}}) {
      WriteBytes(OutputFolder() / name, bytes.substr(0, size));
      const auto path = OutputPath("broken");
      const auto save = [&] { document_->SavePDFFile(path.u8string()); };
      EXPECT_EQ(ErrorNumberOf(save), Error::kInputPastEnd) << name << " of " << size << " bytes";
      EXPECT_NE(ErrorTextOf(save).find("'" + (OutputFolder() / name).string() + "'"),
                std::string::npos);
      EXPECT_EQ(ReadBytes(path).find("endstream"), std::string::npos);
      EXPECT_EQ(ReadBytes(path).find("%%EOF"), std::string::npos);
    }
  }
}

// It would be written cut.
TEST_F(PDFImageInADocument, FileThatBecameLongerRaises62AtTheSave) {
  for (const std::string& bytes : {Jpeg(), Bmp()}) {
    const char* name = bytes == Jpeg() ? "a.jpg" : "a.bmp";
    ASSERT_EQ(FileNameError(name, bytes), 0);
    WriteBytes(OutputFolder() / name, bytes + "m");
    const auto save = [&] { document_->SavePDFFile(OutputPath("broken").u8string()); };
    EXPECT_EQ(ErrorNumberOf(save), Error::kInputPastEnd) << name;
    EXPECT_EQ(ErrorTextOf(save),
              "PDFDocument.SavePDFFile: file '" + (OutputFolder() / name).string() +
                  "': has become longer than " + std::to_string(bytes.size()) + " bytes");
    ASSERT_EQ(FileNameError(name, bytes + "m"), 0) << "given again, it is the picture";
    SaveWithPage("longer.pdf");
  }
}

TEST_F(PDFImageInADocument, APipeIs75AndNotWaitedFor) {
  const auto fifo = OutputPath("fifo.jpg");
  ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
  EXPECT_EQ(FileNameError(fifo), Error::kPathFileAccess);
  EXPECT_EQ(FileNameErrorText(fifo.u8string()),
            "PDFImage.FileName: file '" + fifo.string() +
                "': cannot be read: it is a pipe, a socket or a device, not a file");
}

// A picture that a pipe has taken the place of.
TEST_F(PDFImageInADocument, APipeIs75AtTheSave) {
  ASSERT_EQ(FileNameError("a.jpg", Jpeg()), 0);
  const auto path = OutputPath("a.jpg");
  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
  EXPECT_EQ(ErrorNumberOf([&] { document_->SavePDFFile(OutputPath("broken").u8string()); }),
            Error::kPathFileAccess);
}

TEST_F(PDFImageInADocument, FileNameMayHoldAnyCharacter) {
  const auto path = OutputPath("Gr\u00FC\u00DFe \u20AC \U0001F600.bmp");
  WriteBytes(path, Bmp());
  image_->SetFileName(path.u16string());
  EXPECT_EQ(image_->FileName(), Text(path.u16string()));
  EXPECT_EQ(SaveWithPage("bmp.pdf").pdf.Stream(6), "321654987rgbRGBzyx");
}

TEST_F(PDFImageInADocument, FileIsNotOpenBetweenReadings) {
  ASSERT_EQ(FileNameError("a.bmp", Bmp()), 0);
  std::size_t open = 0;
  for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
    std::error_code error;
    if (std::filesystem::read_symlink(entry.path(), error).filename() == "a.bmp") ++open;
  }
  EXPECT_EQ(open, 0U);
}

}  // namespace
}  // namespace folivar::test
