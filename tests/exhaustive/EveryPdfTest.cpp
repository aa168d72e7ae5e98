#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "tests/support/Tools.h"

// Runs behind all other tests: whatever they wrote must be sound for programs that are not ours.
// Files that are broken on purpose, or have a page of no size, do not end in ".pdf".

namespace folivar::test {
namespace {

std::vector<std::filesystem::path> EveryPdf() {
  std::vector<std::filesystem::path> pdfs;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(FOLIVAR_TEST_OUTPUT)) {
    if (entry.path().extension() == ".pdf") pdfs.push_back(entry.path());
  }
  return pdfs;
}

TEST(EveryPdf, IsSoundForOtherPrograms) {
  const auto pdfs = EveryPdf();
  EXPECT_GT(pdfs.size(), 50U) << "the other tests have not run";
  for (const auto& pdf : pdfs) ExpectSound(pdf);
}

}  // namespace
}  // namespace folivar::test
