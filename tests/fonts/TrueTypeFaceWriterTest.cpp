#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

#include "folivar/file/ObjectNumbers.h"
#include "folivar/fonts/TrueTypeFaceWriter.h"
#include "folivar/fonts/TrueTypeMetrics.h"
#include "tests/support/FakeFonts.h"
#include "tests/support/WrittenObjects.h"

namespace folivar::test {
namespace {

// The record of the face "Plain" as the test wants it.
class TrueTypeFaceWriters : public testing::Test {
 protected:
  TrueTypeFaceWriters() { plain_.metrics = {905, 212, 32, 34}; }

  std::shared_ptr<PDFFontInfo> Loaded(bool isItalic = false, bool embed = false) {
    auto record =
        LoadTrueTypeMetrics({Text(plain_.name), false, isItalic, embed},
                            *system_.SelectFace(Text(plain_.name), false, isItalic), *warnings_);
    record->m_PDFName = "/F1";
    return record;
  }

  std::string Written(bool isItalic = false, bool embed = false) {
    TrueTypeFaceWriter writer(Loaded(isItalic, embed));
    return WrittenObjects(writer);
  }

  FakeFonts system_;
  FakeFace& plain_ = system_.AddFamily("Plain");
  std::shared_ptr<Warnings> warnings_ =
      Warnings::To([](const Text& message) { FAIL() << message.Utf8(); });
};

TEST_F(TrueTypeFaceWriters, FontDescriptorAndProgramAreThreeObjects) {
  plain_.widths[32] = 278;
  plain_.widths[33] = 0;
  plain_.widths[34] = 1015;
  plain_.SetU16("head", 36, -203);
  plain_.SetU16("head", 38, -303);
  plain_.SetU16("head", 40, 1050);
  plain_.SetU16("head", 42, 910);
  plain_.SetU16("PCLT", 16, 1409);
  plain_.program = "any\nbytes";
  EXPECT_EQ(Written(false, true),
            "1 0 obj\n<< /Type /Font\n/Subtype /TrueType\n/Name /F1\n/BaseFont /Plain\n"
            "/FirstChar 32\n/LastChar 34\n/Widths [ 278 0 1015  ]\n/FontDescriptor 2 0 R\n"
            "/Encoding /WinAnsiEncoding\n>>\nendobj\n"
            "2 0 obj\n<<\n/Type /FontDescriptor\n/FontName /Plain\n"
            "/FontBBox [ -203 -303 1050 910  ]\n/Ascent 905 \n/Descent -212 \n/CapHeight 1409 \n"
            "/ItalicAngle 0 \n/Flags 32\n/StemV 70\n/FontFile2 3 0 R\n>>\nendobj\n"
            "3 0 obj\n<<\n/Length 9\n/Length1 9\n>>\nstream\nany\nbytes\nendstream\nendobj\n");
}

TEST_F(TrueTypeFaceWriters, WithoutItsProgramAFaceIsTwoObjects) {
  EXPECT_EQ(Written(true),
            "1 0 obj\n<< /Type /Font\n/Subtype /TrueType\n/Name /F1\n/BaseFont /Plain,Italic\n"
            "/FirstChar 32\n/LastChar 34\n/Widths [ 500 500 500  ]\n/FontDescriptor 2 0 R\n"
            "/Encoding /WinAnsiEncoding\n>>\nendobj\n"
            "2 0 obj\n<<\n/Type /FontDescriptor\n/FontName /Plain,Italic\n"
            "/FontBBox [ 0 0 0 0  ]\n/Ascent 905 \n/Descent -212 \n/CapHeight 0 \n"
            "/ItalicAngle 0 \n/Flags 96\n/StemV 70\n>>\nendobj\n");
}

TEST_F(TrueTypeFaceWriters, NumbersTheRecordInEverySave) {
  const auto face = Loaded(false, true);
  TrueTypeFaceWriter writer(face);
  ObjectNumbers numbers;
  for (const int expected : {1, 4}) {
    writer.NumberObjects(numbers);
    EXPECT_EQ(face->ObjectNumber().Number(), expected);
  }
  EXPECT_EQ(numbers.NextObjectNumber(), 7);
}

TEST_F(TrueTypeFaceWriters, ASymbolicFaceHasNoEncodingAndItsOwnFlags) {
  constexpr int kSymbolicClass = 12;
  plain_.SetU16("OS/2", 30, kSymbolicClass << 8 | 3);
  const std::string upright = Written();
  EXPECT_NE(upright.find("/Widths [ 500 500 500  ]\n/FontDescriptor 2 0 R\n>>\nendobj\n"),
            std::string::npos)
      << upright;
  EXPECT_NE(upright.find("\n/Flags 4\n"), std::string::npos) << upright;
  EXPECT_NE(Written(true).find("\n/Flags 68\n"), std::string::npos);
}

TEST_F(TrueTypeFaceWriters, CodesBeyond255AreNotWritten) {
  plain_.metrics = {900, 200, 254, 0xFFFF};
  const std::string written = Written();
  EXPECT_NE(written.find("/FirstChar 254\n/LastChar 255\n/Widths [ 500 500  ]\n"),
            std::string::npos)
      << written;
}

TEST_F(TrueTypeFaceWriters, WhatWouldEndTheNameIsWrittenInHex) {
  const auto nameOf = [&](std::string_view name) {
    plain_.name = name;
    const auto face = LoadTrueTypeMetrics(
        {Text(name)}, *system_.SelectFace(Text("Plain"), false, false), *warnings_);
    TrueTypeFaceWriter writer(face);
    const std::string written = WrittenObjects(writer);
    constexpr std::string_view kKey = "/FontName /";
    const std::size_t start = written.find(kKey) + kKey.size();
    std::string found = written.substr(start, written.find('\n', start) - start);
    EXPECT_NE(written.find("/BaseFont /" + found + "\n"), std::string::npos) << written;
    return found;
  };
  EXPECT_EQ(nameOf("LiberationSans,Bold"), "LiberationSans,Bold");
  EXPECT_EQ(nameOf("CG Times (W1)"), "CGTimes#28W1#29");
  EXPECT_EQ(nameOf("#%()/<>[]{}"), "#23#25#28#29#2F#3C#3E#5B#5D#7B#7D");
  EXPECT_EQ(nameOf(std::string_view("a\0\t\nb", 5)), "a#00#09#0Ab");
  EXPECT_EQ(nameOf("M\u00FCller"), "M\xFCller");
}

}  // namespace
}  // namespace folivar::test
