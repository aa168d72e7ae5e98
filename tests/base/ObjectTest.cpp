#include <gtest/gtest.h>

#include <memory>
#include <utility>

#include "folivar/base/Object.h"
#include "folivar/folivar.h"

namespace folivar::test {
namespace {

class Face final : public HostPeer {
 public:
  explicit Face(bool& isGone) : isGone_(isGone) {}
  ~Face() override { isGone_ = true; }

 private:
  bool& isGone_;
};

TEST(Object, KeepsItsPeerForAsLongAsItLives) {
  bool isGone = false;
  const auto document = PDFDocument::Create();
  auto page = document->Pages()->Add();
  EXPECT_EQ(page->Peer(), nullptr);
  auto face = std::make_unique<Face>(isGone);
  const HostPeer* const kept = face.get();
  page->SetPeer(std::move(face));
  page.reset();
  EXPECT_EQ(document->Pages()->Item(1)->Peer(), kept);
  EXPECT_FALSE(isGone);
  document->Pages()->Remove(1);
  EXPECT_TRUE(isGone);
}

}  // namespace
}  // namespace folivar::test
