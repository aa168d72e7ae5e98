#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "folivar/base/Error.h"
#include "folivar/fonts/StandardFaces.h"
#include "tests/support/AfmFile.h"
#include "tests/support/Content.h"

namespace folivar::test {
namespace {

TEST(StandardFaces, AreTheFourteenInTheirOrder) {
  ASSERT_EQ(kStandardFaceCount, kStandardFaces.size());
  for (std::size_t face = 0; face < kStandardFaceCount; ++face) {
    EXPECT_EQ(StandardFaceName(face), kStandardFaces[face]);
  }
}

TEST(StandardFaces, AreFoundByNameWithoutRegardToCase) {
  for (std::size_t face = 0; face < kStandardFaceCount; ++face) {
    EXPECT_EQ(FindStandardFace(kStandardFaces[face]), face);
  }
  EXPECT_EQ(FindStandardFace("COURIER"), 0U);
  EXPECT_EQ(FindStandardFace("zapfdingbats"), 13U);
  EXPECT_EQ(FindStandardFace(u"hELVETICA-bOLD"), 5U);
}

TEST(StandardFaces, OtherNamesAreNotFound) {
  for (const char* name : {"", "Arial", "Times", "Helvetica ", " Helvetica", "Helvetica-Bol",
                           "Helvetica-Boldx", "Helv\u00E9tica"}) {
    EXPECT_EQ(FindStandardFace(name), std::nullopt) << name;
  }
}

TEST(StandardFaces, ANameThatIsNotUtf8Raises5) {
  EXPECT_EQ(ErrorNumberOf([] { FindStandardFace("\xFF"); }), Error::kInvalidArgument);
}

TEST(StandardFaces, AreReadOncePerProcessFromAnyThread) {
  constexpr std::size_t kThreads = 8;
  std::vector<std::vector<const AfmMetrics*>> found(kThreads);
  std::vector<std::thread> threads;
  for (std::size_t i = 0; i < kThreads; ++i) {
    threads.emplace_back([&mine = found[i]] {
      for (std::size_t face = 0; face < kStandardFaceCount; ++face) {
        mine.push_back(&StandardFaceMetrics(face));
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (const auto& each : found) EXPECT_EQ(each, found[0]);
  EXPECT_EQ(StandardFaceMetrics(4).capHeight, 718) << "Helvetica";
}

TEST(StandardFaces, HaveTheMetricsOfTheirFiles) {
  for (std::size_t face = 0; face < kStandardFaceCount; ++face) {
    const AfmFile expected = ReadAfmFile(kStandardFaces[face]);
    const AfmMetrics& found = StandardFaceMetrics(face);
    EXPECT_EQ(found.box.top, expected.header.at("FontBBox").at(3)) << kStandardFaces[face];
    for (const auto& [code, glyph] : expected.glyphs) {
      EXPECT_EQ(found.characters[static_cast<std::size_t>(code)].width, glyph.width)
          << kStandardFaces[face] << " " << code;
    }
  }
}

}  // namespace
}  // namespace folivar::test
