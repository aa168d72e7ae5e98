#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "folivar/fonts/StandardFaceFiles.h"
#include "tests/support/AfmFile.h"

namespace folivar::test {
namespace {

TEST(StandardFaceFiles, AreTheFourteenSortedByName) {
  std::vector<std::string_view> names;
  for (const StandardFaceFile& file : StandardFaceFiles()) names.push_back(file.name);
  EXPECT_EQ(names, std::vector<std::string_view>(kStandardFaces.begin(), kStandardFaces.end()));
}

TEST(StandardFaceFiles, AreBuiltInByteForByte) {
  for (const StandardFaceFile& file : StandardFaceFiles()) {
    std::string bytes;
    for (std::size_t i = 0; i < file.pieceCount; ++i) bytes += file.pieces[i];
    // Not EXPECT_EQ, which would print both.
    EXPECT_TRUE(bytes == AfmBytes(file.name)) << file.name;
  }
}

}  // namespace
}  // namespace folivar::test
