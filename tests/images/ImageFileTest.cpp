#include <gtest/gtest.h>

#include <string>

#include "folivar/base/Error.h"
#include "folivar/images/ImageFile.h"
#include "tests/support/Content.h"
#include "tests/support/MemorySource.h"

namespace folivar::test {
namespace {

TEST(ImageFile, NamesTheFile) {
  MemorySource source("0123456789");
  EXPECT_EQ(ImageFile(source, "a b.jpg").Name(), "file 'a b.jpg'");
  EXPECT_EQ(ImageFile(source, "").Size(), 10U);
}

TEST(ImageFile, ReadAgainWantsEveryByte) {
  MemorySource source("0123456789");
  ImageFile file(source, "a.jpg");
  std::string bytes(4, '\0');
  file.ReadAgain(6, bytes);
  EXPECT_EQ(bytes, "6789");
  EXPECT_EQ(file.Read(7, bytes), 3U);
  EXPECT_EQ(ErrorNumberOf([&] { file.ReadAgain(7, bytes); }), Error::kInputPastEnd);
  EXPECT_EQ(ErrorTextOf([&] { file.ReadAgain(7, bytes); }),
            "file 'a.jpg': input past end: it has become shorter than 11 bytes");
}

}  // namespace
}  // namespace folivar::test
