#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "tests/support/TestFiles.h"
#include "tests/support/Tools.h"

// Runs behind all other tests: whatever they wrote must be sound for programs that are not ours.
// Files that are broken on purpose, or have a page of no size, do not end in ".pdf".

namespace folivar::test {
namespace {

// One of each: many tests write what others wrote before, to compare it.
std::vector<std::filesystem::path> EveryPdf() {
  std::vector<std::filesystem::path> pdfs;
  std::multimap<std::size_t, std::filesystem::path> byHash;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(FOLIVAR_TEST_OUTPUT)) {
    if (entry.path().extension() != ".pdf") continue;
    const std::string bytes = ReadBytes(entry.path());
    const std::size_t hash = std::hash<std::string>()(bytes);
    const auto [begin, end] = byHash.equal_range(hash);
    const bool isThere = std::any_of(
        begin, end, [&](const auto& other) { return ReadBytes(other.second) == bytes; });
    if (isThere) continue;
    byHash.emplace(hash, entry.path());
    pdfs.push_back(entry.path());
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
