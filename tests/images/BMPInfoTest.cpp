#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "folivar/base/Error.h"
#include "folivar/images/BMPInfo.h"
#include "folivar/images/ImageFile.h"
#include "tests/support/BmpFile.h"
#include "tests/support/Content.h"
#include "tests/support/MemorySink.h"
#include "tests/support/MemorySource.h"
#include "tests/support/Random.h"

namespace folivar::test {
namespace {

void Load(BMPInfo& reader, std::string_view bytes) {
  MemorySource source(bytes);
  ImageFile file(source, "a.bmp");
  ASSERT_TRUE(reader.LoadImageInfo(file));
}

std::string StreamOf(const BMPInfo& reader, std::string_view bytes, MemorySink& sink) {
  MemorySource source(bytes);
  ImageFile file(source, "a.bmp");
  reader.WriteImageStream(file, sink);
  return sink.Bytes();
}

std::string StreamOf(const BmpFile& bmp) {
  BMPInfo reader;
  Load(reader, bmp.Bytes());
  MemorySink sink;
  const std::string stream = StreamOf(reader, bmp.Bytes(), sink);
  EXPECT_EQ(stream.size(), static_cast<std::size_t>(reader.ImageStreamSize()));
  return stream;
}

// The number of the error, 0 for none, and its text.
std::string ErrorFor(std::string_view bytes) {
  const auto load = [&] {
    BMPInfo reader;
    Load(reader, bytes);
  };
  return std::to_string(ErrorNumberOf(load)) + " " + ErrorTextOf(load);
}

std::string Refusal(std::string_view reason) {
  return "-2147220504 Unknown BMP format (" + std::string(reason) + ", in file 'a.bmp')";
}

// Of a bitmap that others can read.
std::string RefusalOfKind(std::string_view kind) {
  return "-2147220504 Unknown BMP format (" + std::string(kind) +
         ", in file 'a.bmp'; JPEG and uncompressed BMP files can be read: convert it to one of "
         "them)";
}

std::string Palette(std::size_t count, std::uint32_t (*colorOf)(std::uint32_t)) {
  std::string palette;
  for (std::uint32_t i = 0; i < count; ++i) palette += PaletteEntry(colorOf(i));
  return palette;
}

std::uint32_t Grey(std::uint32_t i) { return i * 0x010101; }

TEST(BMPInfo, RowsOf24BitsComeFromTheTopInRedGreenBlue) {
  // Two rows of three pixels, each row padded to twelve bytes.
  const BmpFile bmp{.width = 3, .height = 2, .pixels = "bgrBGRxyz...123456789..."};
  BMPInfo reader;
  Load(reader, bmp.Bytes());
  EXPECT_EQ(reader.Width(), 3);
  EXPECT_EQ(reader.Height(), 2);
  EXPECT_EQ(reader.BitsPerComponent(), 8);
  EXPECT_EQ(reader.ColorSpace(), "/DeviceRGB");
  EXPECT_EQ(reader.ImageStreamSize(), 18);
  EXPECT_EQ(StreamOf(bmp), "321654987rgbRGBzyx");
}

TEST(BMPInfo, RowsOfIndicesStayAsTheyAre) {
  BmpFile bmp{.width = 5, .height = 2, .bits = 8, .pixels = "abcde...ABCDE..."};
  bmp.palette = Palette(256, [](std::uint32_t i) { return i; });
  EXPECT_EQ(StreamOf(bmp), "ABCDEabcde");

  bmp.bits = 4;
  bmp.palette.resize(64);
  bmp.pixels = "abc.ABC.";
  EXPECT_EQ(StreamOf(bmp), "ABCabc");

  bmp.bits = 1;
  bmp.width = 17;
  bmp.palette.resize(8);
  EXPECT_EQ(StreamOf(bmp), "ABCabc");
}

// Deliberate: whatever the palette of a picture of one bit says.
TEST(BMPInfo, DeliberateOneBitIsBlackAndWhiteWithAnyPalette) {
  for (const std::uint32_t first : {0x000000U, 0xFFFFFFU, 0xFF0000U}) {
    BmpFile bmp{.width = 8, .bits = 1, .pixels = "\xA5..."};
    bmp.palette = PaletteEntry(first) + PaletteEntry(0xFFFFFF - first);
    BMPInfo reader;
    Load(reader, bmp.Bytes());
    EXPECT_EQ(reader.ColorSpace(), "/DeviceGray");
    EXPECT_EQ(reader.BitsPerComponent(), 1);
    EXPECT_EQ(StreamOf(bmp), "\xA5");
  }
}

TEST(BMPInfo, PaletteIsWrittenInRedGreenBlue) {
  BmpFile bmp{.bits = 4, .pixels = "...."};
  bmp.palette = Palette(16, [](std::uint32_t i) { return 0xAB0900 + i; });
  BMPInfo reader;
  Load(reader, bmp.Bytes());
  EXPECT_EQ(reader.ColorSpace(),
            "[/Indexed /DeviceRGB 15\n"
            "<AB0900AB0901AB0902AB0903AB0904AB0905AB0906AB0907AB0908AB0909AB090AAB090BAB090CAB090D"
            "AB090EAB090F> ]");
  EXPECT_EQ(reader.BitsPerComponent(), 4);
}

TEST(BMPInfo, PaletteHasTheNumberOfColoursUsed) {
  BmpFile bmp{.bits = 8, .pixels = "...."};
  bmp.palette = PaletteEntry(0x00FF7F) + PaletteEntry(0x102030);
  bmp.colorsUsed = 2;
  BMPInfo reader;
  Load(reader, bmp.Bytes());
  EXPECT_EQ(reader.ColorSpace(), "[/Indexed /DeviceRGB 1\n<00FF7F102030> ]");
  EXPECT_EQ(reader.BitsPerComponent(), 8);

  bmp.colorsUsed = 256;
  bmp.palette = Palette(256, [](std::uint32_t) { return std::uint32_t{0x010203}; });
  Load(reader, bmp.Bytes());
  const std::string_view space = reader.ColorSpace();
  EXPECT_TRUE(space.starts_with("[/Indexed /DeviceRGB 255\n<010203"));
  EXPECT_TRUE(space.ends_with("010203> ]"));
  EXPECT_EQ(space.size(), std::string("[/Indexed /DeviceRGB 255\n<> ]").size() + 256 * 6);
}

// The fourth byte of an entry has no meaning.
TEST(BMPInfo, PaletteOfAllGreysInOrderIsGrey) {
  BmpFile bmp{.bits = 8, .pixels = "...."};
  bmp.palette = Palette(256, [](std::uint32_t i) { return Grey(i) + 0x55000000; });
  BMPInfo reader;
  Load(reader, bmp.Bytes());
  EXPECT_EQ(reader.ColorSpace(), "/DeviceGray");
  EXPECT_EQ(reader.BitsPerComponent(), 8);

  for (const std::size_t byte : {0U, 1U, 2U, 4U, 510U, 1020U, 1022U}) {
    BmpFile other = bmp;
    other.palette[byte] = static_cast<char>(other.palette[byte] ^ 1);
    Load(reader, other.Bytes());
    EXPECT_TRUE(reader.ColorSpace().starts_with("[/Indexed ")) << byte;
  }
  std::reverse(bmp.palette.begin(), bmp.palette.end());
  Load(reader, bmp.Bytes());
  EXPECT_TRUE(reader.ColorSpace().starts_with("[/Indexed ")) << "white comes first";
}

// Deliberate: the entries (0, 0, 0) to (15, 15, 15), nearly black all of them, become the greys
// from black to white.
TEST(BMPInfo, DeliberateFourBitsWithTheDarkestGreysInOrderAreGrey) {
  BmpFile bmp{.bits = 4, .pixels = "...."};
  bmp.palette = Palette(16, Grey);
  BMPInfo reader;
  Load(reader, bmp.Bytes());
  EXPECT_EQ(reader.ColorSpace(), "/DeviceGray");
  EXPECT_EQ(reader.BitsPerComponent(), 4);
}

TEST(BMPInfo, PixelsStandWhereTheHeaderSays) {
  BmpFile bmp{.width = 1, .height = 2, .bits = 8, .pixels = "a...b..."};
  bmp.palette = Palette(256, Grey);
  bmp.gap = "between";
  EXPECT_EQ(StreamOf(bmp), "ba");
}

TEST(BMPInfo, PaddingOfTheLastRowMayBeMissing) {
  EXPECT_EQ(StreamOf({.width = 1, .height = 2, .pixels = "bgr.123"}), "321rgb");
  EXPECT_EQ(ErrorFor(BmpFile{.width = 1, .height = 2, .pixels = "bgr.12"}.Bytes()),
            Refusal("the pixels reach beyond the end"));
}

// The signature and the number of planes are not looked at.
TEST(BMPInfo, FieldsWithoutUseMayHoldAnything) {
  std::string bytes = BmpFile{.pixels = "bgr."}.Bytes();
  for (const std::size_t unused :
       {0U, 1U, 2U, 5U, 6U, 9U, 26U, 27U, 34U, 37U, 38U, 45U, 50U, 53U}) {
    bytes[unused] = '\xFF';
  }
  BMPInfo reader;
  Load(reader, bytes);
  EXPECT_EQ(reader.ImageStreamSize(), 3);
}

TEST(BMPInfo, UnknownKindsAreRefused) {
  EXPECT_EQ(ErrorFor(BmpFile{.pixels = "....", .headerSize = 12}.Bytes()),
            RefusalOfKind("an information header of 12 bytes"));
  for (const std::uint32_t size : {0U, 39U, 41U, 108U, 124U, 0x28000000U}) {
    EXPECT_TRUE(
        ErrorFor(BmpFile{.pixels = "....", .headerSize = size}.Bytes()).starts_with("-2147220504"));
  }
  for (const std::uint32_t compression : {1U, 2U, 3U, 4U, 5U, 0x10000U}) {
    EXPECT_EQ(ErrorFor(BmpFile{.pixels = "....", .compression = compression}.Bytes()),
              RefusalOfKind("compression " + std::to_string(compression)));
  }
  BmpFile bmp{.palette = Palette(256, Grey), .pixels = "...."};
  for (std::uint16_t bits = 0; bits < 300; ++bits) {
    bmp.bits = bits;
    const bool isKnown = bits == 1 || bits == 4 || bits == 8 || bits == 24;
    EXPECT_EQ(ErrorFor(bmp.Bytes()),
              isKnown ? "0 " : RefusalOfKind(std::to_string(bits) + " bits a pixel"));
  }
}

TEST(BMPInfo, SizesOf0AndBelowAreRefused) {
  EXPECT_EQ(ErrorFor(BmpFile{.width = 0, .pixels = "...."}.Bytes()),
            RefusalOfKind("0 by 1 pixels"));
  EXPECT_EQ(ErrorFor(BmpFile{.width = -1, .pixels = "...."}.Bytes()),
            RefusalOfKind("-1 by 1 pixels"));
  EXPECT_EQ(ErrorFor(BmpFile{.height = 0, .pixels = "...."}.Bytes()),
            RefusalOfKind("1 by 0 pixels"));
  // Stored from the top down.
  EXPECT_EQ(ErrorFor(BmpFile{.height = -1, .pixels = "...."}.Bytes()),
            RefusalOfKind("1 by -1 pixels"));
  EXPECT_EQ(ErrorFor(BmpFile{.width = INT32_MIN, .height = INT32_MIN, .pixels = "...."}.Bytes()),
            RefusalOfKind("-2147483648 by -2147483648 pixels"));
}

TEST(BMPInfo, SizesBeyond32BitsAreRefused) {
  const std::string tooLarge = Refusal("more than 2147483647 bytes of pixels");
  const std::string outside = Refusal("the pixels reach beyond the end");
  EXPECT_EQ(ErrorFor(BmpFile{.width = INT32_MAX, .height = INT32_MAX}.Bytes()), tooLarge);
  EXPECT_EQ(ErrorFor(BmpFile{.width = 65536, .height = 10923}.Bytes()), tooLarge);
  EXPECT_EQ(ErrorFor(BmpFile{.width = 65536, .height = 10922}.Bytes()), outside);
  EXPECT_EQ(ErrorFor(BmpFile{.width = 715827883, .height = 1}.Bytes()), tooLarge);
  EXPECT_EQ(ErrorFor(BmpFile{.width = 715827882, .height = 1}.Bytes()), outside);
  BmpFile bmp{.width = 1, .height = INT32_MAX, .bits = 1, .palette = Palette(2, Grey)};
  EXPECT_EQ(ErrorFor(bmp.Bytes()), outside);
  bmp.width = 9;
  EXPECT_EQ(ErrorFor(bmp.Bytes()), tooLarge);
}

TEST(BMPInfo, PalettesTooLargeOrOutsideTheFileAreRefused) {
  BmpFile bmp{.bits = 8, .palette = Palette(300, Grey), .pixels = "....", .colorsUsed = 257};
  EXPECT_EQ(ErrorFor(bmp.Bytes()), Refusal("a palette of 257 colours"));
  bmp.bits = 1;
  EXPECT_EQ(ErrorFor(bmp.Bytes()), Refusal("a palette of 257 colours"));
  bmp.colorsUsed = UINT32_MAX;
  EXPECT_EQ(ErrorFor(bmp.Bytes()), Refusal("a palette of 4294967295 colours"));
  // It has no use for 24 bits, but has to be there.
  bmp.bits = 24;
  bmp.colorsUsed = 257;
  EXPECT_EQ(ErrorFor(bmp.Bytes()), "0 ");
  bmp.colorsUsed = 302;
  EXPECT_EQ(ErrorFor(bmp.Bytes()), Refusal("a palette of 302 colours"));

  bmp = {.bits = 8, .palette = Palette(255, Grey), .offset = 54};
  EXPECT_EQ(ErrorFor(bmp.Bytes()), Refusal("a palette of 256 colours"));
  bmp.pixels = "1234";
  EXPECT_EQ(ErrorFor(bmp.Bytes()), "0 ");
}

TEST(BMPInfo, PixelsOutsideTheFileAreRefused) {
  const std::string outside = Refusal("the pixels reach beyond the end");
  BmpFile bmp{.width = 1, .height = 1, .pixels = "bgr"};
  EXPECT_EQ(ErrorFor(bmp.Bytes()), "0 ");
  for (const std::uint32_t offset : {55U, 57U, 58U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
    bmp.offset = offset;
    EXPECT_EQ(ErrorFor(bmp.Bytes()), outside) << offset;
  }
}

TEST(BMPInfo, FileCutShortIsRefused) {
  BmpFile bmp{.width = 3, .height = 2, .bits = 8, .palette = Palette(256, Grey)};
  bmp.pixels = "abc.def.";
  const std::string whole = bmp.Bytes();
  for (std::size_t size = 0; size < whole.size() - 1; ++size) {
    EXPECT_TRUE(ErrorFor(whole.substr(0, size)).starts_with("-2147220504 Unknown BMP format"))
        << size;
  }
  EXPECT_EQ(ErrorFor(whole.substr(0, 53)), Refusal("the headers are cut short"));
}

TEST(BMPInfo, ARefusalIsAboutTheFile) {
  for (const BmpFile& bmp : {BmpFile{.bits = 2}, BmpFile{.width = 1, .height = 1, .pixels = ""}}) {
    try {
      BMPInfo reader;
      Load(reader, bmp.Bytes());
      FAIL() << "it was read";
    } catch (const Error& error) {
      EXPECT_EQ(error.Object(), "file 'a.bmp'");
      EXPECT_STREQ(error.Description(), "Unknown BMP format");
    }
  }
}

// The rules as the plainest program that keeps them: pixel by pixel, bit by bit.
std::string NaiveStream(const BmpFile& bmp) {
  const auto width = static_cast<std::size_t>(bmp.width);
  const auto height = static_cast<std::size_t>(bmp.height);
  const std::size_t length = (width * bmp.bits + 7) / 8;
  const std::size_t padded = bmp.pixels.size() / height;
  std::string stream;
  for (std::size_t y = 0; y < height; ++y) {
    const std::string row = bmp.pixels.substr((height - 1 - y) * padded, length);
    if (bmp.bits != 24) {
      stream += row;
      continue;
    }
    for (std::size_t x = 0; x < width; ++x) {
      stream += {row[3 * x + 2], row[3 * x + 1], row[3 * x]};
    }
  }
  return stream;
}

struct Size {
  std::int32_t width;
  std::int32_t height;
  std::uint16_t bits;
};

BmpFile RandomBmp(const Size& size, Random& random) {
  BmpFile bmp{.width = size.width, .height = size.height, .bits = size.bits};
  if (size.bits < 24) bmp.palette = Palette(std::size_t{1} << size.bits, Grey);
  const auto bits = static_cast<std::size_t>(size.width) * size.bits;
  bmp.pixels.resize((bits + 31) / 32 * 4 * static_cast<std::size_t>(size.height));
  std::generate(bmp.pixels.begin(), bmp.pixels.end(),
                [&] { return static_cast<char>(random.Bits() >> 32); });
  return bmp;
}

TEST(BMPInfo, EverySmallSizeIsWrittenRight) {
  Random random;
  SCOPED_TRACE(random.Trace());
  for (const auto bits : std::to_array<std::uint16_t>({1, 4, 8, 24})) {
    for (std::int32_t width = 1; width <= 34; ++width) {
      for (const std::int32_t height : {1, 2, 3, 7}) {
        const BmpFile bmp = RandomBmp({width, height, bits}, random);
        ASSERT_EQ(StreamOf(bmp), NaiveStream(bmp)) << width << " x " << height << " x " << bits;
      }
    }
  }
}

// Rows as long as a piece, longer and shorter, and heights at which the last piece is not full.
TEST(BMPInfo, SizesAroundThatOfAPieceAreWrittenRight) {
  Random random;
  SCOPED_TRACE(random.Trace());
  constexpr auto kPiece = static_cast<std::int32_t>(kImagePiece);
  constexpr std::int32_t kRows = kPiece / 3000;
  for (const Size size :
       {Size{kPiece / 3 - 1, 3, 24}, Size{kPiece / 3, 3, 24}, Size{kPiece / 3 + 1, 3, 24},
        Size{kPiece - 3, 2, 8}, Size{kPiece, 2, 8}, Size{kPiece + 1, 2, 8},
        Size{2 * kPiece + 5, 2, 4}, Size{kPiece, 3, 24}, Size{1000, kRows, 24},
        Size{1000, kRows + 1, 24}, Size{1000, 2 * kRows + 1, 24}, Size{1, kPiece / 4 + 1, 8},
        Size{8 * kPiece + 9, 2, 1}}) {
    const BmpFile bmp = RandomBmp(size, random);
    BMPInfo reader;
    Load(reader, bmp.Bytes());
    MemorySink sink;
    EXPECT_TRUE(StreamOf(reader, bmp.Bytes(), sink) == NaiveStream(bmp))
        << size.width << " x " << size.height << " x " << size.bits;
    EXPECT_LE(*std::max_element(sink.Writes().begin(), sink.Writes().end()), kImagePiece);
  }
}

TEST(BMPInfo, ShorterFileRaises62AndALongerOneIsCut) {
  const BmpFile bmp{.width = 3, .height = 2, .pixels = "bgrBGRxyz...123456789"};
  const std::string bytes = bmp.Bytes();
  BMPInfo reader;
  Load(reader, bytes);
  MemorySink sink;
  EXPECT_EQ(StreamOf(reader, bytes + "...more", sink), "321654987rgbRGBzyx");
  const std::string shorter = bytes.substr(0, bytes.size() - 1);
  EXPECT_EQ(ErrorNumberOf([&] { StreamOf(reader, shorter, sink); }), Error::kInputPastEnd);
  EXPECT_EQ(ErrorTextOf([&] { StreamOf(reader, shorter, sink); }),
            "file 'a.bmp': input past end: it has become shorter than " +
                std::to_string(bytes.size()) + " bytes");
}

}  // namespace
}  // namespace folivar::test
