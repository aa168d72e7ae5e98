#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "folivar/fonts/FontMemory.h"

namespace folivar::test {
namespace {

class FontMemoryOfThree : public testing::Test {
 protected:
  // Reads texts that are as heavy as they are long, and keeps a record of it.
  std::shared_ptr<const std::string> Recall(const std::string& identity) {
    return memory_.Recall(identity, [&] {
      reads_.push_back(identity);
      return identity;
    });
  }

  std::vector<std::string> reads_;
  FontMemory<std::string> memory_{3, [](const std::string& text) { return text.size(); }};
};

using Identities = std::vector<std::string>;

TEST_F(FontMemoryOfThree, WhatIsKnownIsNotReadAgain) {
  const auto first = Recall("a");
  EXPECT_EQ(Recall("a"), first);
  EXPECT_EQ(reads_, Identities{"a"});
}

TEST_F(FontMemoryOfThree, WhatWasNotAskedForTheLongestGoes) {
  for (const char* identity : {"a", "b", "c", "a", "d", "a", "c", "b"}) Recall(identity);
  EXPECT_EQ(reads_, (Identities{"a", "b", "c", "d", "b"})) << "b went when d came";
}

TEST_F(FontMemoryOfThree, WhatIsHeavyTakesTheRoomOfMany) {
  for (const char* identity : {"a", "b", "cc", "b", "a"}) Recall(identity);
  EXPECT_EQ(reads_, (Identities{"a", "b", "cc", "a"}));
}

TEST_F(FontMemoryOfThree, TheLastIsKnownHoweverHeavyItIs) {
  for (const char* identity : {"a", "heavy", "heavy", "a"}) Recall(identity);
  EXPECT_EQ(reads_, (Identities{"a", "heavy", "a"}));
}

TEST_F(FontMemoryOfThree, WhatIsForgottenStaysWithThoseThatHoldIt) {
  const auto held = Recall("a");
  Recall("heavy");
  EXPECT_EQ(*held, "a");
}

TEST_F(FontMemoryOfThree, AFailureIsNotRemembered) {
  EXPECT_THROW(memory_.Recall("a", []() -> std::string { throw std::runtime_error("no"); }),
               std::runtime_error);
  EXPECT_EQ(*Recall("a"), "a");
}

}  // namespace
}  // namespace folivar::test
