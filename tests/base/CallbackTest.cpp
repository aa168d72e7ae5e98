#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

#include "folivar/base/Callback.h"

namespace folivar::test {
namespace {

using Telling = Callback<std::string&>;

std::string Told(const Telling& callback) {
  std::string told;
  callback(told);
  return told;
}

// As large as a pointer, most of it padding.
struct alignas(void*) Padded {
  void operator()(std::string& told) const { told += letter; }

  char letter;
};

TEST(Callback, IsNoneAtFirstAndOnceMovedAway) {
  Telling callback;
  EXPECT_TRUE(callback.IsNone());
  callback = Telling([](std::string& told) { told = "called"; });
  EXPECT_FALSE(callback.IsNone());
  const Telling moved = std::move(callback);
  EXPECT_TRUE(callback.IsNone());  // NOLINT(bugprone-use-after-move)
  EXPECT_EQ(Told(moved), "called");
}

TEST(Callback, HandsOverItsArguments) {
  const Callback<int, std::string&> callback(
      [](int number, std::string& told) { told += std::to_string(number); });
  std::string told = "one";
  callback(7, told);
  EXPECT_EQ(told, "one7");
}

TEST(Callback, OneOfAPointerThatNeverChangesTakesNoMemory) {
  const std::string word = "word";
  const auto reference = [&word](std::string& told) { told = word; };
  const auto pointer = [from = &word](std::string& told) { told = *from; };
  static_assert(Telling::kIsHere<decltype(reference)>);
  static_assert(Telling::kIsHere<decltype(pointer)>);
  EXPECT_EQ(Told(Telling(reference)), "word");
  EXPECT_EQ(Told(Telling(pointer)), "word");
}

TEST(Callback, OneWithPaddingTakesNoMemoryEither) {
  static_assert(sizeof(Padded) == sizeof(void*));
  static_assert(!std::has_unique_object_representations_v<Padded>);
  static_assert(Telling::kIsHere<Padded>);
  const Telling callback(Padded{'p'});
  const Telling copy = callback;  // NOLINT(performance-unnecessary-copy-initialization)
  EXPECT_EQ(Told(callback), "p");
  EXPECT_EQ(Told(copy), "p");
}

TEST(Callback, CopiesShareWhatTheCallableChangesInItself) {
  const auto count = [calls = std::size_t{0}](std::string& told) mutable {
    told = std::to_string(++calls);
  };
  static_assert(!Telling::kIsHere<decltype(count)>);
  const Telling callback(count);
  const Telling copy = callback;  // NOLINT(performance-unnecessary-copy-initialization)
  EXPECT_EQ(Told(callback), "1");
  EXPECT_EQ(Told(copy), "2");
  EXPECT_EQ(Told(callback), "3");
}

TEST(Callback, TheLastCopyLetsGoOfWhatWasCaptured) {
  const auto captured = std::make_shared<std::string>("kept");
  Telling callback([captured](std::string& told) { told = *captured; });
  Telling copy = callback;
  EXPECT_EQ(captured.use_count(), 2) << "copies share one capture";
  callback = Telling();
  EXPECT_EQ(captured.use_count(), 2);
  EXPECT_EQ(Told(copy), "kept");
  Telling& same = copy;
  copy = same;
  EXPECT_EQ(captured.use_count(), 2);
  copy = Telling(Padded{'p'});
  EXPECT_EQ(captured.use_count(), 1);
  EXPECT_EQ(Told(copy), "p");
}

}  // namespace
}  // namespace folivar::test
