#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "folivar/folivar.h"
#include "tests/support/TestFiles.h"
#include "tests/support/Tools.h"

namespace folivar::test {
namespace {

TEST(Tools, RunGivesStatusAndBothOutputs) {
  const ToolResult result = test::Run({"sh", "-c", "echo one; echo two >&2; exit 3"});
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.out, "one\n");
  EXPECT_EQ(result.err, "two\n");
}

TEST(Tools, RunPassesArgumentsUnchanged) {
  EXPECT_EQ(test::Run({"printf", "%s|", "a b", "$HOME", "*", ""}).out, "a b|$HOME|*||");
}

TEST(Tools, RunTellsASignal) { EXPECT_EQ(test::Run({"sh", "-c", "kill -9 $$"}).status, 128 + 9); }

TEST(Tools, AMissingProgramIsAnError) {
  EXPECT_THROW(test::Run({"no-such-program-here"}), std::runtime_error);
}

TEST(Tools, ADamagedFileIsNotSound) {
  const auto document = PDFDocument::Create();
  document->Pages()->Add()->DrawText("text", 72, 700);
  const auto path = OutputPath("damaged");
  document->SavePDFFile(path.u8string());
  std::string bytes = ReadBytes(path);
  bytes.replace(bytes.find("startxref\n") + 10, 1, "9");
  WriteBytes(path, bytes);

  testing::TestPartResultArray found;
  {
    const testing::ScopedFakeTestPartResultReporter reporter(
        testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &found);
    ExpectSound(path);
  }
  EXPECT_GT(found.size(), 0);
}

TEST(Tools, AContentErrorIsNotSound) {
  const auto document = PDFDocument::Create();
  document->Pages()->Add()->DrawText("text", 72, 700);
  const auto path = OutputPath("damaged");
  document->SavePDFFile(path.u8string());
  std::string bytes = ReadBytes(path);
  bytes.replace(bytes.find(" Tj\n"), 3, " Tq");
  WriteBytes(path, bytes);

  testing::TestPartResultArray found;
  {
    const testing::ScopedFakeTestPartResultReporter reporter(
        testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &found);
    ExpectSound(path);
  }
  // qpdf does not look into the content; the three that draw do.
  EXPECT_GE(found.size(), 3);
}

TEST(Tools, TextOfGivesThePagesInOrder) {
  const auto document = PDFDocument::Create();
  document->Pages()->Add()->DrawText("first page", 72, 700);
  document->Pages()->Add()->DrawText("second (page)", 72, 700);
  const auto path = OutputPath("text.pdf");
  document->SavePDFFile(path.u8string());
  EXPECT_EQ(TextOf(path), "first page\n\fsecond (page)\n\f");
}

}  // namespace
}  // namespace folivar::test
