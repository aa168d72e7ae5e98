#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "folivar/base/Error.h"
#include "folivar/folivar.h"
#include "tests/support/BmpFile.h"
#include "tests/support/Content.h"
#include "tests/support/PictureSheet.h"
#include "tests/support/Pixels.h"
#include "tests/support/Random.h"
#include "tests/support/TestFiles.h"
#include "tests/support/Tools.h"

// Bitmaps that other programs have made, or that are put together as others make them: taken out
// of the PDF file and drawn by three programs, they are the pictures they were, pixel for pixel.

namespace folivar::test {
namespace {

struct Size {
  std::size_t width;
  std::size_t height;
};

constexpr Size kSizes[] = {{1, 1}, {2, 3},  {3, 2},  {5, 7}, {8, 8},
                           {9, 4}, {31, 5}, {32, 3}, {33, 6}};

std::string_view EntryOf(std::string_view palette, std::size_t entry) {
  return palette.substr(3 * entry, 3);
}

// Colours without a system, as red, green and blue.
std::string RandomPalette(std::size_t count, Random& random) {
  std::set<std::string> colours;
  while (colours.size() < count) {
    colours.insert({static_cast<char>(random.Bits()), static_cast<char>(random.Bits()),
                    static_cast<char>(random.Bits())});
  }
  std::string palette;
  for (const std::string& colour : colours) palette += colour;
  return palette;
}

std::string GreyPalette(std::size_t count) {
  std::string palette;
  for (std::size_t i = 0; i < count; ++i)
    palette.append(3, static_cast<char>(i * 255 / (count - 1)));
  return palette;
}

// Every colour is there when there is room for it.
Pixels PictureIn(std::string_view palette, const Size& size, Random& random) {
  Pixels picture{size.width, size.height};
  const std::size_t colours = palette.size() / 3;
  for (std::size_t i = 0; i < size.width * size.height; ++i) {
    picture.rgb += EntryOf(palette, i < colours ? i : random.Below(colours));
  }
  return picture;
}

class ForeignBmp : public testing::Test {
 protected:
  // A bitmap of so many bits that holds the picture. The bits are checked: a program may choose.
  void Add(const std::string& bytes, int bits, const Pixels& picture) {
    ASSERT_GT(bytes.size(), 54U);
    ASSERT_EQ(bytes[28], bits);
    const auto path = OutputPath(std::to_string(expected_.size()) + ".bmp");
    WriteBytes(path, bytes);
    // What the file holds is not for us to say.
    ASSERT_EQ(ReadPnm(test::Run({"bmptopnm", path}).out), picture) << path;
    ASSERT_EQ(ReadPnm(test::Run({"convert-im6", path, "-depth", "8", "ppm:-"}).out), picture)
        << path;
    sheet_.Add(path);
    expected_.push_back(picture);
  }

  // The file that a program makes of a picture.
  static std::string MadeBy(std::vector<std::string> command, const Pixels& picture) {
    const auto source = OutputPath("source.ppm");
    WriteBytes(source, PpmOf(picture));
    for (std::string& word : command) {
      if (word == "SOURCE") word = source;
    }
    return test::Run(command).out;
  }

  // A file of colours in the order that a palette is to have.
  static std::string MapFile(const Pixels& colours) {
    const auto path = OutputPath("map.ppm");
    WriteBytes(path, PpmOf(colours));
    return path;
  }

  void ExpectEveryPictureAsItWas() {
    sheet_.SaveTo("sheet.pdf");
    const std::vector<Pixels> embedded = EmbeddedPixels(sheet_.Path());
    ASSERT_EQ(embedded.size(), expected_.size());
    for (std::size_t i = 0; i < expected_.size(); ++i) {
      EXPECT_EQ(embedded[i], expected_[i]) << "number " << i;
      for (const Pixels& drawn : sheet_.Drawn(i)) EXPECT_EQ(drawn, expected_[i]) << "number " << i;
    }
  }

  Random random_;
  PictureSheet sheet_{33};
  std::vector<Pixels> expected_;
};

TEST_F(ForeignBmp, ImageMagick24Bits) {
  SCOPED_TRACE(random_.Trace());
  for (const Size& size : kSizes) {
    const Pixels picture = PictureIn(RandomPalette(1000, random_), size, random_);
    Add(MadeBy({"convert-im6", "SOURCE", "-type", "TrueColor", "BMP3:-"}, picture), 24, picture);
  }
  ExpectEveryPictureAsItWas();
}

TEST_F(ForeignBmp, ImageMagickPalettes) {
  SCOPED_TRACE(random_.Trace());
  for (const std::size_t colours : {3U, 16U, 17U, 100U, 256U}) {
    for (const Size& size : {Size{19, 15}, Size{33, 9}}) {
      const Pixels picture = PictureIn(RandomPalette(colours, random_), size, random_);
      Add(MadeBy({"convert-im6", "SOURCE", "-type", "Palette", "-compress", "None", "BMP3:-"},
                 picture),
          colours <= 16 ? 4 : 8, picture);
    }
  }
  ExpectEveryPictureAsItWas();
}

// A palette of all greys in order makes the picture a grey one.
TEST_F(ForeignBmp, GreysInOrder) {
  const Pixels picture = PictureIn(GreyPalette(256), {32, 8}, random_);
  // ImageMagick chooses greys of its own.
  const std::string bytes =
      MadeBy({"convert-im6", "SOURCE", "-type", "Palette", "-compress", "None", "BMP3:-"}, picture);
  const auto path = OutputPath("greys.bmp");
  WriteBytes(path, bytes);
  Add(bytes, 8, ReadPnm(test::Run({"bmptopnm", path}).out));
  Add(MadeBy({"ppmtobmp", "-windows", "-bpp=8", "-mapfile=" + MapFile(picture), "SOURCE"}, picture),
      8, picture);
  ExpectEveryPictureAsItWas();
  const std::string pdf = ReadBytes(sheet_.Path());
  EXPECT_EQ(pdf.find("/Indexed"), std::string::npos);
  EXPECT_NE(pdf.find("/ColorSpace /DeviceGray\n/BitsPerComponent 8\n"), std::string::npos);
}

TEST_F(ForeignBmp, Netpbm24Bits) {
  SCOPED_TRACE(random_.Trace());
  for (const Size& size : kSizes) {
    const Pixels picture = PictureIn(RandomPalette(1000, random_), size, random_);
    Add(MadeBy({"ppmtobmp", "-windows", "-bpp=24", "SOURCE"}, picture), 24, picture);
  }
  ExpectEveryPictureAsItWas();
}

TEST_F(ForeignBmp, NetpbmPalettes) {
  SCOPED_TRACE(random_.Trace());
  for (const Size& size : kSizes) {
    const Pixels few = PictureIn(RandomPalette(16, random_), size, random_);
    Add(MadeBy({"ppmtobmp", "-windows", "-bpp=4", "SOURCE"}, few), 4, few);
    const Pixels many = PictureIn(RandomPalette(256, random_), size, random_);
    Add(MadeBy({"ppmtobmp", "-windows", "-bpp=8", "SOURCE"}, many), 8, many);
    const Pixels grey = PictureIn(GreyPalette(16), size, random_);
    Add(MadeBy({"ppmtobmp", "-windows", "-bpp=4", "SOURCE"}, grey), 4, grey);
  }
  ExpectEveryPictureAsItWas();
}

// An image editor's bitmaps: resolution, palette length and number of important colours are told,
// and the palette has no more entries than colours.
TEST_F(ForeignBmp, HeadersOfAnImageEditor) {
  SCOPED_TRACE(random_.Trace());
  for (const int bits : {1, 4, 8, 24}) {
    for (const Size& size : kSizes) {
      std::string palette = bits == 1    ? std::string("\0\0\0\xFF\xFF\xFF", 6)
                            : bits == 24 ? std::string()
                                         : RandomPalette(bits == 4 ? 11 : 201, random_);
      BmpFile bmp{.width = static_cast<std::int32_t>(size.width),
                  .height = static_cast<std::int32_t>(size.height),
                  .bits = static_cast<std::uint16_t>(bits),
                  .colorsUsed = static_cast<std::uint32_t>(palette.size() / 3)};
      for (std::size_t i = 0; i < palette.size(); i += 3) {
        bmp.palette += {palette[i + 2], palette[i + 1], palette[i], '\0'};
      }
      Pixels picture{size.width, size.height};
      std::vector<std::string> rows;
      for (std::size_t y = 0; y < size.height; ++y) {
        std::string row((size.width * static_cast<std::size_t>(bits) + 31) / 32 * 4, '\0');
        for (std::size_t x = 0; x < size.width; ++x) {
          if (bits == 24) {
            const std::string colour = RandomPalette(1, random_);
            row.replace(3 * x, 3, std::string(colour.rbegin(), colour.rend()));
            picture.rgb += colour;
            continue;
          }
          const std::size_t index = random_.Below(palette.size() / 3);
          const std::size_t bit = x * static_cast<std::size_t>(bits);
          row[bit / 8] =
              static_cast<char>(static_cast<unsigned char>(row[bit / 8]) |
                                (index << (8 - static_cast<std::size_t>(bits) - bit % 8)));
          picture.rgb += EntryOf(palette, index);
        }
        rows.push_back(row);
      }
      for (auto row = rows.rbegin(); row != rows.rend(); ++row) bmp.pixels += *row;
      Add(bmp.Bytes(), bits, picture);
    }
  }
  ExpectEveryPictureAsItWas();
}

TEST_F(ForeignBmp, OneBitWithBlackFirst) {
  SCOPED_TRACE(random_.Trace());
  for (const Size& size : kSizes) {
    if (size.width == 1) continue;  // of one colour
    const Pixels picture = PictureIn(GreyPalette(2), size, random_);
    Add(MadeBy({"convert-im6", "SOURCE", "-monochrome", "BMP3:-"}, picture), 1, picture);
    const std::string map = MapFile({2, 1, GreyPalette(2)});
    Add(MadeBy({"ppmtobmp", "-windows", "-bpp=1", "-mapfile=" + map, "SOURCE"}, picture), 1,
        picture);
  }
  ExpectEveryPictureAsItWas();
}

// Deliberate: the palette of a picture of one bit does not count.
TEST_F(ForeignBmp, DeliberateOneBitIsInvertedWithWhiteFirst) {
  SCOPED_TRACE(random_.Trace());
  for (const Size& size : kSizes) {
    const Pixels picture = PictureIn(GreyPalette(2), size, random_);
    const std::string map = MapFile({2, 1, std::string("\xFF\xFF\xFF\0\0\0", 6)});
    Add(MadeBy({"ppmtobmp", "-windows", "-bpp=1", "-mapfile=" + map, "SOURCE"}, picture), 1,
        picture);
    for (char& byte : expected_.back().rgb) byte = static_cast<char>(~byte);
  }
  ExpectEveryPictureAsItWas();
}

// What these programs can write besides.
TEST_F(ForeignBmp, OtherKindsAreRefused) {
  const Pixels picture = PictureIn(RandomPalette(10, random_), {9, 4}, random_);
  const std::vector<std::vector<std::string>> commands = {
      {"convert-im6", "SOURCE", "BMP2:-"},
      {"convert-im6", "SOURCE", "BMP:-"},
      {"convert-im6", "SOURCE", "-type", "Palette", "-compress", "RLE", "BMP3:-"},
      {"convert-im6", "SOURCE", "-define", "bmp:subtype=RGB565", "BMP3:-"},
      {"ppmtobmp", "-os2", "SOURCE"},
  };
  const auto image = PDFDocument::Create()->Images()->Add();
  for (const auto& command : commands) {
    const auto path = OutputPath("other.bmp");
    WriteBytes(path, MadeBy(command, picture));
    ASSERT_GT(std::filesystem::file_size(path), 60U);
    EXPECT_EQ(ErrorNumberOf([&] { image->SetFileName(path.u8string()); }), Error::kUnknownImageType)
        << testing::PrintToString(command);
    EXPECT_TRUE(ErrorTextOf([&] {
                  image->SetFileName(path.u8string());
                }).starts_with("Unknown BMP format ("));
  }
}

}  // namespace
}  // namespace folivar::test
