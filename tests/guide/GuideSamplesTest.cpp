#include <gtest/gtest.h>

#include <filesystem>
#include <ostream>
#include <string>

#include "tests/guide/GuideSamples.h"
#include "tests/support/PackagedFonts.h"
#include "tests/support/SavedDocument.h"
#include "tests/support/TestFiles.h"

void PrintTo(const GuideSample& sample, std::ostream* out) { *out << "line " << sample.line; }

namespace folivar::test {
namespace {

// Each sample runs in a folder that holds the files that the samples name.
class GuideSamples : public testing::TestWithParam<GuideSample> {
 protected:
  GuideSamples() {
    const std::filesystem::path font = PackagedFont("liberation/LiberationSans-Regular.ttf");
    const std::filesystem::path folder = OutputPath("photo.jpg").parent_path();
    std::filesystem::create_directories(folder / "fonts");
    const auto overwrite = std::filesystem::copy_options::overwrite_existing;
    std::filesystem::copy_file(DataPath("../examples/data/catalogue/hills.jpg"),
                               folder / "photo.jpg", overwrite);
    std::filesystem::copy_file(font, folder / "fonts" / font.filename(), overwrite);
    std::filesystem::current_path(folder);
  }
  ~GuideSamples() override { std::filesystem::current_path(before_); }

 private:
  std::filesystem::path before_ = std::filesystem::current_path();
};

TEST_P(GuideSamples, GivesTheFileThatTheGuideShows) {
  const auto document = PDFDocument::Create();
  GetParam().run(document, document->Pages()->Add());
  const SavedDocument saved = Save(*document, "sample.pdf", Check::kForm);
  EXPECT_NE(saved.bytes.find(GetParam().expected), std::string::npos) << GetParam().expected;
}

INSTANTIATE_TEST_SUITE_P(Guide, GuideSamples, testing::ValuesIn(kGuideSamples),
                         [](const auto& sample) {
                           return "Line" + std::to_string(sample.param.line);
                         });

}  // namespace
}  // namespace folivar::test
