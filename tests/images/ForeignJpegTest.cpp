#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "folivar/folivar.h"
#include "tests/support/PictureSheet.h"
#include "tests/support/Pixels.h"
#include "tests/support/StrictPdf.h"
#include "tests/support/TestFiles.h"
#include "tests/support/Tools.h"

// JPEG files that other programs have made: in the PDF file they are what they were, byte for byte,
// and three programs draw them like a decoder of JPEG files.

namespace folivar::test {
namespace {

// Smooth, as JPEG likes it, and no row like another.
Pixels Photograph(std::size_t width, std::size_t height) {
  Pixels pixels{width, height};
  for (std::size_t y = 0; y < height; ++y) {
    for (std::size_t x = 0; x < width; ++x) {
      pixels.rgb += {static_cast<char>(x * 255 / width), static_cast<char>(y * 255 / height),
                     static_cast<char>((x + y) * 2)};
    }
  }
  return pixels;
}

class ForeignJpeg : public testing::Test {
 protected:
  static std::filesystem::path Source(std::size_t width = 61, std::size_t height = 43) {
    const auto path = OutputPath("source.ppm");
    WriteBytes(path, PpmOf(Photograph(width, height)));
    return path;
  }

  static std::string Encoded(std::vector<std::string> arguments, const std::string& source) {
    arguments.insert(arguments.begin(), "cjpeg");
    arguments.push_back(source);
    const ToolResult result = test::Run(arguments);
    EXPECT_EQ(result.status, 0) << result.err;
    return result.out;
  }

  void Add(const std::string& bytes) {
    const auto path = OutputPath(std::to_string(files_.size()) + ".jpg");
    WriteBytes(path, bytes);
    sheet_.Add(path);
    files_.push_back(path);
  }

  // The decoders of all programs are related, but not bound to round alike.
  void ExpectEveryFileAsItWas() {
    sheet_.SaveTo("sheet.pdf");
    const std::vector<std::string> embedded = EmbeddedFiles(sheet_.Path());
    ASSERT_EQ(embedded.size(), files_.size());
    for (std::size_t i = 0; i < files_.size(); ++i) {
      EXPECT_TRUE(embedded[i] == ReadBytes(files_[i])) << files_[i];
      const Pixels decoded = ReadPnm(test::Run({"djpeg", "-pnm", files_[i]}).out);
      for (const Pixels& drawn : sheet_.Drawn(i)) {
        EXPECT_LE(LargestDifference(drawn, decoded), 3) << files_[i];
      }
    }
  }

  PictureSheet sheet_{61};
  std::vector<std::filesystem::path> files_;
};

TEST_F(ForeignJpeg, BaselineAndProgressiveWithRestartMarkersAndAnySampling) {
  const std::string source = Source();
  Add(Encoded({}, source));
  Add(Encoded({"-progressive"}, source));
  Add(Encoded({"-optimize", "-quality", "100", "-sample", "1x1"}, source));
  Add(Encoded({"-restart", "1B"}, source));
  Add(Encoded({"-restart", "1", "-progressive"}, source));
  Add(Encoded({"-sample", "2x1", "-quality", "30"}, source));
  Add(Encoded({"-rgb"}, source));
  EXPECT_NE(ReadBytes(files_[1]).find("\xFF\xC2"), std::string::npos);
  EXPECT_NE(ReadBytes(files_[3]).find("\xFF\xD7"), std::string::npos);
  ExpectEveryFileAsItWas();
}

TEST_F(ForeignJpeg, SizesThatFillNoBlock) {
  for (const std::size_t width : {1U, 7U, 8U, 9U, 17U}) {
    for (const std::size_t height : {1U, 16U, 23U}) Add(Encoded({}, Source(width, height)));
  }
  ExpectEveryFileAsItWas();
}

// Also segments of odd length, behind which every marker stands at an odd place.
TEST_F(ForeignJpeg, CommentsOfAnyLength) {
  const auto plain = OutputPath("plain.jpg");
  WriteBytes(plain, Encoded({}, Source()));
  for (const std::size_t length : {1U, 2U, 3U, 254U, 255U, 4093U, 4094U, 40001U, 64998U, 64999U}) {
    const ToolResult result = test::Run({"wrjpgcom", "-comment", std::string(length, 'x'), plain});
    ASSERT_EQ(result.out.size(), ReadBytes(plain).size() + length + 4) << result.err;
    Add(result.out);
  }
  ExpectEveryFileAsItWas();
}

// The thumbnail is a JPEG file inside a segment, with a frame header of its own.
TEST_F(ForeignJpeg, ExifWithAThumbnail) {
  const auto path = OutputPath("exif.jpg");
  WriteBytes(path, Encoded({}, Source()));
  // Exiv2 takes the thumbnail from the file of this name.
  WriteBytes(OutputPath("exif-thumb.jpg"), Encoded({}, Source(16, 12)));
  const ToolResult data =
      test::Run({"exiv2", "-M", "set Exif.Image.ImageDescription Ascii Garden", path});
  ASSERT_EQ(data.status, 0) << data.err;
  const ToolResult thumbnail = test::Run({"exiv2", "-it", path});
  ASSERT_EQ(thumbnail.status, 0) << thumbnail.err;
  ASSERT_NE(ReadBytes(path).find(ReadBytes(path.parent_path() / "exif-thumb.jpg")),
            std::string::npos);
  Add(ReadBytes(path));
  ExpectEveryFileAsItWas();
}

// Deliberate: what other programs make of a dictionary that says three components is their affair;
// the file is in the PDF file as it is.
TEST_F(ForeignJpeg, DeliberateGreyAndFourComponentsAreDeclaredAsRgb) {
  const std::string source = Source();
  const auto document = PDFDocument::Create();
  const auto page = document->Pages()->Add();
  std::vector<std::string> files = {
      Encoded({"-grayscale"}, source),
      test::Run({"convert-im6", source, "-colorspace", "CMYK", "jpeg:-"}).out,
  };
  EXPECT_EQ(test::Run({"convert-im6", source, "-colorspace", "CMYK", "jpeg:-"}).status, 0);
  for (std::size_t i = 0; i < files.size(); ++i) {
    const auto path = OutputPath(std::to_string(i) + ".jpg");
    WriteBytes(path, files[i]);
    const std::string components = test::Run({"identify-im6", "-format", "%[channels]", path}).out;
    EXPECT_EQ(components, i == 0 ? "gray" : "cmyk");
    const auto image = document->Images()->Add();
    image->SetFileName(path.u8string());
    page->DrawImage(image, 0, 0);
  }
  // Not ".pdf": it is not sound.
  const auto path = OutputPath("components");
  document->SavePDFFile(path.u8string());
  const StrictPdf pdf(ReadBytes(path));
  for (std::size_t i = 0; i < files.size(); ++i) {
    EXPECT_EQ(pdf.Object(6 + i),
              "<< /Type /XObject\n/Subtype /Image\n/Name /I" + std::to_string(i + 1) +
                  "\n/Width 61 \n/Height 43 \n/ColorSpace /DeviceRGB\n/BitsPerComponent 8\n"
                  "/Interpolate false\n/Filter /DCTDecode\n/Length " +
                  std::to_string(files[i].size()) + " >>\nstream\n" + files[i] + "\nendstream\n");
  }
  EXPECT_TRUE(EmbeddedFiles(path) == files);
}

}  // namespace
}  // namespace folivar::test
