#include <gtest/gtest.h>

#include <string>

#include "folivar/base/Error.h"
#include "folivar/page/Stack.h"
#include "tests/support/Content.h"

namespace folivar::test {
namespace {

TEST(Stack, GivesTheLastOneFirst) {
  Stack<std::string> stack;
  stack.Push("one");
  stack.Push("two");
  EXPECT_EQ(stack.Count(), 2);
  EXPECT_EQ(stack.Peek(), "two");
  EXPECT_EQ(stack.Count(), 2);
  EXPECT_EQ(stack.Pop(), "two");
  stack.Push("three");
  EXPECT_EQ(stack.Pop(), "three");
  EXPECT_EQ(stack.Pop(), "one");
  EXPECT_EQ(stack.Count(), 0);
}

TEST(Stack, Raises9WhenNothingIsThere) {
  Stack<int> stack;
  EXPECT_EQ(ErrorNumberOf([&] { stack.Pop(); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] { stack.Peek(); }), Error::kSubscriptOutOfRange);
  stack.Push(1);
  stack.Pop();
  EXPECT_EQ(ErrorNumberOf([&] { stack.Pop(); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(stack.Count(), 0);
}

}  // namespace
}  // namespace folivar::test
