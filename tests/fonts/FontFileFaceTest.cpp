#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "folivar/base/Error.h"
#include "folivar/fonts/FontFileFace.h"
#include "folivar/fonts/TrueTypeMetrics.h"
#include "tests/support/Content.h"
#include "tests/support/FileWatch.h"
#include "tests/support/FontBuilder.h"
#include "tests/support/FreeTypeFace.h"
#include "tests/support/PackagedFonts.h"
#include "tests/support/TestFiles.h"

namespace folivar::test {
namespace {

using std::filesystem::path;

std::vector<FontFileFace> FacesIn(const path& file) { return FacesInFile(Text(file.u8string())); }

path Written(std::string_view name, std::string_view bytes) {
  path file = OutputPath(name);
  WriteBytes(file, bytes);
  return file;
}

TEST(FontFileFace, InstalledFilesHoldTheFaceThatFreeTypeSees) {
  for (const path& file : PackagedFonts()) {
    SCOPED_TRACE(file);
    const FreeTypeFace expected(ReadBytes(file));
    const std::vector<FontFileFace> faces = FacesIn(file);
    ASSERT_EQ(faces.size(), 1U);
    EXPECT_EQ(faces[0].fileName.Utf8(), file.string());
    EXPECT_EQ(faces[0].index, 0U);
    EXPECT_EQ(faces[0].family.Utf8(), expected.Family());
    EXPECT_EQ(faces[0].isBold, expected.IsBold());
    EXPECT_EQ(faces[0].isItalic, expected.IsItalic());
  }
}

TEST(FontFileFace, RecordsOfInstalledFilesMeasureAsInFreeType) {
  for (const path& file : PackagedFonts()) {
    SCOPED_TRACE(file);
    const FreeTypeFace expected(ReadBytes(file));
    const FontFileFace face = FacesIn(file).at(0);
    const auto warnings = Warnings::To([](const Text& message) { FAIL() << message.Utf8(); });
    const auto loaded = LoadTrueTypeMetrics({face.family}, *OpenFace(face, face.isBold), *warnings);
    const PDFFontInfo& record = *loaded;

    EXPECT_EQ(record.m_FontFace, face.family);
    EXPECT_EQ(record.m_Ascender, static_cast<float>(expected.Ascent()));
    EXPECT_EQ(record.m_Descender, static_cast<float>(-expected.Descent()));
    // Truncated toward zero, as C++ divides.
    std::array<float, 4> box = {};
    for (std::size_t side = 0; side < box.size(); ++side) {
      const int thousandths = expected.Box().at(side) * 1000 / expected.UnitsPerEm();
      box.at(side) = static_cast<float>(thousandths);
    }
    EXPECT_EQ((std::array{record.FontBoxLeft(), record.FontBoxBottom(), record.FontBoxRight(),
                          record.FontBoxTop()}),
              box);
    std::array<int, 256> widths = expected.Widths();
    widths[10] = 0;  // by rule, whatever the font says
    widths[12] = 0;
    for (std::size_t code = 0; code < widths.size(); ++code) {
      const char byte = static_cast<char>(code);
      EXPECT_EQ(record.MeasureWidth({&byte, 1}), static_cast<float>(widths.at(code))) << code;
    }
  }
}

TEST(FontFileFace, TheFacesOfACollectionComeInTheirOrder) {
  FontBuilder bold;
  SetU16(bold.tables["OS/2"], 62, 0x20);
  FontBuilder postScript;
  postScript.version = 0x4F54544F;  // "OTTO"
  FontBuilder other;
  other.tables["name"] = NameTable({{.bytes = BigEndian(u"Other")}});
  SetU16(other.tables["OS/2"], 62, 0x01);
  const path file = Written("fonts.ttc", BuildCollection({FontBuilder(), postScript, bold, other}));
  const std::vector<FontFileFace> faces = FacesIn(file);
  ASSERT_EQ(faces.size(), 3U);
  const auto seen = [&](std::size_t i) {
    return std::tuple(faces[i].index, faces[i].family.Utf8(), faces[i].isBold, faces[i].isItalic);
  };
  EXPECT_EQ(seen(0), std::tuple(0U, "Test Sans", false, false));
  EXPECT_EQ(seen(1), std::tuple(2U, "Test Sans", true, false)) << "the second is not TrueType";
  EXPECT_EQ(seen(2), std::tuple(3U, "Other", false, true));
}

TEST(FontFileFace, EachFaceOfACollectionHasItsOwnProgram) {
  FontBuilder wide;
  SetU16(wide.tables["hmtx"], 4, 999);
  const path file = Written("fonts.ttc", BuildCollection({FontBuilder(), wide}));
  const std::vector<FontFileFace> faces = FacesIn(file);
  const auto first = OpenFace(faces.at(0), false)->Program();
  const auto second = OpenFace(faces.at(1), false)->Program();
  EXPECT_EQ(FreeTypeFace(*first).Widths()['A'], 101);
  EXPECT_EQ(FreeTypeFace(*second).Widths()['A'], 999);
  EXPECT_EQ(OpenFace(faces.at(1), false)->Program(), second);
}

TEST(FontFileFace, PostScriptFontsHoldNoFace) {
  FontBuilder font;
  font.version = 0x4F54544F;
  EXPECT_TRUE(FacesIn(Written("cff.otf", font.Build())).empty());
}

TEST(FontFileFace, AFaceThatIsNotBoldIsThickenedByOneUnitWhenBoldIsWanted) {
  const path regular = PackagedFont("liberation/LiberationSans-Regular.ttf");
  std::array<int, 256> expected = FreeTypeFace(ReadBytes(regular)).Widths();
  const FontFileFace face = FacesIn(regular).at(0);
  EXPECT_EQ(OpenFace(face, false)->Widths(), expected);
  for (int& width : expected) ++width;
  EXPECT_EQ(OpenFace(face, true)->Widths(), expected);

  const path bold = PackagedFont("liberation/LiberationSans-Bold.ttf");
  const FontFileFace boldFace = FacesIn(bold).at(0);
  EXPECT_EQ(OpenFace(boldFace, true)->Widths(), FreeTypeFace(ReadBytes(bold)).Widths());
  EXPECT_EQ(OpenFace(boldFace, false)->Widths(), FreeTypeFace(ReadBytes(bold)).Widths());
}

TEST(FontFileFace, TheNearestStyleCountsItalicBeforeBold) {
  const auto face = [](bool isBold, bool isItalic, const char* name) {
    return FontFileFace{Text(name), 0, Text("Test"), isBold, isItalic};
  };
  const FontFileFace regular = face(false, false, "regular");
  const FontFileFace bold = face(true, false, "bold");
  const FontFileFace italic = face(false, true, "italic");
  const FontFileFace both = face(true, true, "both");
  const auto nearest = [](const std::vector<FontFileFace>& faces, bool isBold, bool isItalic) {
    return std::min_element(faces.begin(), faces.end(), IsNearer{isBold, isItalic})
        ->fileName.Utf8();
  };
  const std::vector<FontFileFace> all = {regular, bold, italic, both};
  EXPECT_EQ(nearest(all, false, false), "regular");
  EXPECT_EQ(nearest(all, true, false), "bold");
  EXPECT_EQ(nearest(all, false, true), "italic");
  EXPECT_EQ(nearest(all, true, true), "both");
  EXPECT_EQ(nearest({regular, bold, italic}, true, true), "italic");
  EXPECT_EQ(nearest({regular, bold}, true, true), "bold");
  EXPECT_EQ(nearest({both, italic, bold}, false, false), "bold");
  EXPECT_EQ(nearest({both, italic}, false, false), "italic");
  EXPECT_EQ(nearest({both, italic}, true, false), "both");
  EXPECT_EQ(nearest({both}, false, false), "both");
  EXPECT_EQ(nearest({regular, face(false, false, "second")}, false, false), "regular");
}

TEST(FontFileFace, TheNearestStyleCountsWeightBeforeWidth) {
  struct Style {
    bool isItalic;
    std::uint16_t weight;
    std::uint16_t width;
  };
  const auto nearest = [](const std::vector<Style>& styles, bool isBold) {
    std::vector<FontFileFace> faces;
    for (const Style& style : styles) {
      faces.push_back({Text(), static_cast<std::uint32_t>(faces.size()), Text("Test"), false,
                       style.isItalic, style.weight, style.width});
    }
    return std::min_element(faces.begin(), faces.end(), IsNearer{isBold, false})->index;
  };
  constexpr bool kUpright = false;
  constexpr bool kItalic = true;
  const std::vector<Style> weights = {{kUpright, 900, 5}, {kUpright, 400, 5}, {kUpright, 100, 5}};
  EXPECT_EQ(nearest(weights, false), 1U);
  EXPECT_EQ(nearest(weights, true), 0U);
  EXPECT_EQ(nearest({{kUpright, 300, 5}, {kUpright, 450, 5}}, false), 1U);
  EXPECT_EQ(nearest({{kUpright, 900, 5}, {kUpright, 600, 5}}, true), 1U);
  EXPECT_EQ(nearest({{kUpright, 400, 3}, {kUpright, 400, 6}, {kUpright, 400, 1}}, false), 1U);
  EXPECT_EQ(nearest({{kUpright, 500, 5}, {kUpright, 400, 1}}, false), 1U) << "weight before width";
  EXPECT_EQ(nearest({{kItalic, 400, 5}, {kUpright, 900, 1}}, false), 1U) << "italic before weight";
  EXPECT_EQ(nearest({{kUpright, 500, 5}, {kUpright, 300, 5}}, false), 0U) << "the first of several";
}

TEST(FontFileFace, WeightAndWidthAreRead) {
  FontBuilder font;
  SetU16(font.tables["OS/2"], 4, 900);
  SetU16(font.tables["OS/2"], 6, 3);
  const FontFileFace face = FacesIn(Written("font.ttf", font.Build())).at(0);
  EXPECT_EQ(face.weight, 900);
  EXPECT_EQ(face.width, 3);
}

// Neither the size nor the time of the last writing tells.
TEST(FontFileFace, AFileThatWasReplacedIsReadAgain) {
  const auto renamed = [](const char16_t* name) {
    FontBuilder font;
    font.tables["name"] = NameTable({{.bytes = BigEndian(name)}});
    return font.Build();
  };
  const path file = Written("font.ttf", renamed(u"First"));
  const auto time = last_write_time(file);
  EXPECT_EQ(FacesIn(file).at(0).family, "First");
  const path other = Written("other.ttf", renamed(u"Other"));
  last_write_time(other, time);
  ASSERT_EQ(file_size(other), file_size(file));
  std::filesystem::rename(other, file);
  EXPECT_EQ(FacesIn(file).at(0).family, "Other");
}

TEST(FontFileFace, TheProcessRemembers4096Faces) {
  const path first = Written("first.ttf", FontBuilder().Build());
  const FileWatch watch(first);
  FacesIn(first);
  EXPECT_TRUE(watch.WasOpened());
  // Room for the names, as if each font had its own.
  const std::string names(1'000'000, '\0');
  FacesIn(Written("many.ttc", BuildCollection(std::vector<FontBuilder>(4095)) + names));
  FacesIn(first);
  EXPECT_FALSE(watch.WasOpened());
  FacesIn(Written("more.ttc", BuildCollection(std::vector<FontBuilder>(4096)) + names));
  FacesIn(first);
  EXPECT_TRUE(watch.WasOpened());
}

TEST(FontFileFace, AFileThatIsNotThereRaises53) {
  EXPECT_EQ(ErrorNumberOf([] { FacesIn("no/such.ttf"); }), Error::kFileNotFound);
}

TEST(FontFileFace, ADamagedFileIsNamedWithItsTable) {
  FontBuilder font;
  font.tables.erase("hmtx");
  const path file = Written("damaged.ttf", font.Build());
  EXPECT_EQ(ErrorNumberOf([&] { FacesIn(file); }), Error::kInvalidFileFormat);
  EXPECT_EQ(ErrorTextOf([&] { FacesIn(file); }),
            "file '" + file.string() + "': damaged font: it has no table 'hmtx'");
}

TEST(FontFileFace, AFileThatIsDamagedSinceItWasListedIsNamed) {
  const path file = Written("font.ttf", FontBuilder().Build());
  const FontFileFace face = FacesIn(file).at(0);
  WriteBytes(file, FontBuilder().Build().substr(0, 200));
  EXPECT_EQ(ErrorNumberOf([&] { OpenFace(face, false); }), Error::kInvalidFileFormat);
  EXPECT_NE(ErrorTextOf([&] { OpenFace(face, false); }).find(file.string()), std::string::npos);
}

// A collection that names one font again and again, at the same place.
std::string CollectionOfSame(const FontBuilder& font, std::uint32_t count) {
  std::string one = BuildCollection({font});
  std::string file = one.substr(0, 8) + U32(count);
  // Where the fonts begin, and their tables, moves behind the list of fonts.
  const std::uint32_t moved = 4 * (count - 1);
  for (std::uint32_t i = 0; i < count; ++i) file += U32(16 + moved);
  for (std::size_t i = 0; i < font.tables.size(); ++i) {
    const std::size_t record = 16 + 12 + 16 * i;
    SetU32(one, record + 8, U32In(one, record + 8) + moved);
  }
  return file + one.substr(16);
}

FontBuilder WithManyTables() {
  FontBuilder font;
  for (std::uint32_t i = 0; i < 30'000; ++i) font.tables["z" + U32(i).substr(1)] = "";
  return font;
}

void ExpectRefusedAtOnce(const path& file, const std::string& how) {
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(ErrorNumberOf([&] { FacesIn(file); }), Error::kInvalidFileFormat);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
  EXPECT_EQ(ErrorTextOf([&] { FacesIn(file); }),
            "file '" + file.string() + "': damaged font: " + how);
}

// Each with a long list of tables or of names: to read them all would take minutes.
TEST(FontFileFace, ACollectionOfOneFontManyTimesIsRefusedAtOnce) {
  FontBuilder withManyNames;
  withManyNames.tables["name"] = NameTable(std::vector<FontName>(5000, {.bytes = BigEndian(u"A")}));
  for (const FontBuilder& font : {WithManyTables(), withManyNames}) {
    ExpectRefusedAtOnce(Written("many.ttc", CollectionOfSame(font, 60'000)), "its fonts overlap");
  }
}

// A file of 5 GiB that takes no room on the disk could have that many lists.
TEST(FontFileFace, ListsOfMoreThan64MiBAreRefusedHoweverLargeTheFile) {
  const path file = Written("padded.ttc", CollectionOfSame(WithManyTables(), 5000));
  resize_file(file, std::uintmax_t{5} << 30);
  ExpectRefusedAtOnce(file, "its lists of tables and names are too long");
}

TEST(FontFileFace, ACollectionOfAMillionFontsIsRefused) {
  FontBuilder font;
  font.version = 0x4F54544F;  // "OTTO", which needs no tables
  font.tables.clear();
  ExpectRefusedAtOnce(Written("million.ttc", CollectionOfSame(font, 1'000'000)),
                      "it has 1000000 fonts");
}

}  // namespace
}  // namespace folivar::test
