#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "tests/hosts/c/Held.h"

namespace folivar::test {
namespace {

// A handler that calls a function, which may be changed.
struct Handler {
  std::function<std::int32_t(folivar_PDFPage*)> function;
  int released = 0;

  folivar_callback Callback() {
    const auto call = [](void* context, const folivar_value* arguments, std::size_t count) {
      EXPECT_EQ(count, 1U);
      void* page = folivar_object_in(arguments[0]);
      return static_cast<Handler*>(context)->function(static_cast<folivar_PDFPage*>(page));
    };
    const auto release = [](void* context) { ++static_cast<Handler*>(context)->released; };
    return {call, release, this};
  }
};

std::int64_t Subscribe(folivar_PDFPage* page, Handler& handler) {
  std::int64_t subscription = 0;
  const folivar_callback callback = handler.Callback();
  EXPECT_EQ(
      folivar_subscribe(folivar_any(page), folivar_PDFPage_PageRemoved, &callback, &subscription),
      0)
      << LastText();
  return subscription;
}

TEST(CEvents, HandlersHearInTheirOrder) {
  const auto document = NewDocument();
  const auto page = AddPage(document, "a");
  std::string heard;
  Handler first{[&](folivar_PDFPage* removed) {
    heard += "first " + KeyOf(removed);
    EXPECT_EQ(removed, page);
    return 0;
  }};
  Handler second{[&](folivar_PDFPage*) {
    heard += ", second";
    return 0;
  }};
  Subscribe(page, first);
  Subscribe(page, second);
  ASSERT_EQ(folivar_PDFPages_Remove(PagesOf(document), folivar_text("a")), 0);
  EXPECT_EQ(heard, "first a, second");
}

TEST(CEvents, AFailureComesOutOfTheCallAndThePageIsRemoved) {
  const auto document = NewDocument();
  const auto page = AddPage(document, "a");
  int calls = 0;
  Handler first{[&](folivar_PDFPage*) { return ++calls, 77; }};
  Handler second{[&](folivar_PDFPage*) { return ++calls, 78; }};
  Subscribe(page, first);
  Subscribe(page, second);
  EXPECT_EQ(folivar_PDFPages_Remove(PagesOf(document), folivar_integer(1)), 77);
  EXPECT_EQ(calls, 2);
  std::int32_t count = 1;
  ASSERT_EQ(folivar_PDFPages_count(PagesOf(document), &count), 0);
  EXPECT_EQ(count, 0);
}

TEST(CEvents, HandlersMayUnsubscribeAndSubscribeWhileTheyRun) {
  const auto document = NewDocument();
  const auto page = AddPage(document, "a");
  int calls = 0;
  std::int64_t own = 0;
  std::int64_t others = 0;
  Handler late{[&](folivar_PDFPage*) { return calls += 100, 0; }};
  Handler other{[&](folivar_PDFPage*) { return calls += 10, 0; }};
  Handler handler{[&](folivar_PDFPage* removed) {
    ++calls;
    EXPECT_EQ(folivar_unsubscribe(folivar_any(removed), own), 0);
    EXPECT_EQ(folivar_unsubscribe(folivar_any(removed), others), 0);
    EXPECT_EQ(other.released, 1);
    Subscribe(removed, late);
    return 0;
  }};
  own = Subscribe(page, handler);
  others = Subscribe(page, other);
  ASSERT_EQ(folivar_PDFPages_Remove(PagesOf(document), folivar_integer(1)), 0);
  EXPECT_EQ(calls, 1);
  EXPECT_EQ(handler.released, 1);
  EXPECT_EQ(folivar_unsubscribe(page.Any(), own), 0);
}

TEST(CEvents, CallbacksAreReleasedOnce) {
  Handler handler{[](folivar_PDFPage*) { return 0; }};
  {
    const auto document = NewDocument();
    const auto page = AddPage(document, "a");
    Subscribe(page, handler);
    const folivar_callback callback = handler.Callback();
    std::int64_t subscription = 1;
    EXPECT_EQ(folivar_subscribe(page.Any(), 99, &callback, &subscription), 438);
    EXPECT_EQ(subscription, 0);
    EXPECT_EQ(handler.released, 1);
    EXPECT_EQ(folivar_subscribe(document.Any(), 1, &callback, &subscription), 438);
    EXPECT_EQ(handler.released, 2);
  }
  EXPECT_EQ(handler.released, 3);
}

TEST(CEvents, HandlersMayLetGoOfEverything) {
  folivar_PDFDocument* document = nullptr;
  folivar_PDFPages* pages = nullptr;
  folivar_PDFPage* page = nullptr;
  ASSERT_EQ(folivar_PDFDocument_new(nullptr, &document), 0);
  ASSERT_EQ(folivar_PDFDocument_Pages(document, &pages), 0);
  ASSERT_EQ(folivar_PDFPages_Add(pages, "a", folivar_missing(), folivar_missing(), &page), 0);
  Handler handler{[&](folivar_PDFPage*) {
    folivar_release(page);
    folivar_release(pages);
    folivar_release(document);
    EXPECT_EQ(handler.released, 0);
    return 0;
  }};
  Subscribe(page, handler);
  EXPECT_EQ(folivar_PDFPages_Remove(pages, folivar_integer(1)), 0);
  EXPECT_EQ(handler.released, 1);
}

TEST(CEvents, AFailureInReOrderIsDropped) {
  const auto document = NewDocument();
  const auto page = AddPage(document, "a");
  AddPage(document, "b");
  int calls = 0;
  Handler handler{[&](folivar_PDFPage*) { return ++calls, 77; }};
  Subscribe(page, handler);
  EXPECT_EQ(folivar_PDFPages_ReOrder(PagesOf(document), "a", folivar_missing(), folivar_missing()),
            0);
  EXPECT_EQ(calls, 1);
}

}  // namespace
}  // namespace folivar::test
