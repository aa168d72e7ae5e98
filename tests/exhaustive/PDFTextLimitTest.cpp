#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "folivar/base/Error.h"
#include "folivar/file/PDFText.h"
#include "tests/support/Content.h"

namespace folivar::test {
namespace {

// Two GiB of memory, in steps: room made in advance must not let a text grow past the limit.
TEST(PDFTextLimit, GrowsInStepsUpToTheLimitAndNoFurther) {
  constexpr std::size_t kLimit = 2147483647;
  const std::string piece(std::size_t{1} << 20, 'x');
  PDFText text;
  while (text.Size() + piece.size() <= kLimit) text.Append(piece);
  EXPECT_EQ(ErrorNumberOf([&] { text.Append(piece); }), Error::kOverflow);
  text.Append(piece.substr(0, kLimit - text.Size()));
  EXPECT_EQ(text.Size(), kLimit);
  EXPECT_EQ(ErrorNumberOf([&] { text.Append("x"); }), Error::kOverflow);
  EXPECT_EQ(text.Size(), kLimit);
}

}  // namespace
}  // namespace folivar::test
