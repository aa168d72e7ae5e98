#include <gtest/gtest.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "tests/hosts/c/Held.h"

// Runs under the thread sanitizer.

namespace folivar::test {
namespace {

// Calls `action` while this thread is in the midst of a call on the document.
void WhileInUse(folivar_PDFDocument* document, const std::function<void()>& action) {
  const auto page = AddPage(document);
  const auto call = [](void* context, const folivar_value*, std::size_t) {
    (*static_cast<const std::function<void()>*>(context))();
    return 0;
  };
  const folivar_callback handler = {call, nullptr, const_cast<std::function<void()>*>(&action)};
  std::int64_t subscription = 0;
  ASSERT_EQ(folivar_subscribe(page.Any(), folivar_PDFPage_PageRemoved, &handler, &subscription), 0);
  std::int32_t count = 0;
  ASSERT_EQ(folivar_PDFPages_count(PagesOf(document), &count), 0);
  ASSERT_EQ(folivar_PDFPages_Remove(PagesOf(document), folivar_integer(count)), 0) << LastText();
}

void InAnotherThread(const std::function<void()>& action) { std::thread(action).join(); }

TEST(CUsage, ASecondThreadGetsError70) {
  const auto document = NewDocument();
  const auto page = AddPage(document);
  WhileInUse(document, [&] {
    InAnotherThread([&] {
      EXPECT_EQ(folivar_PDFPage_DrawText(page, "a", 1, 2), 70);
      EXPECT_EQ(LastText(), "PDFPage.DrawText: the document is being used by another thread");
    });
    // This thread may call again.
    EXPECT_EQ(folivar_PDFPage_DrawText(page, "a", 1, 2), 0);
  });
  InAnotherThread([&] { EXPECT_EQ(folivar_PDFPage_DrawText(page, "a", 1, 2), 0); });
}

TEST(CUsage, OtherDocumentsAreNotDisturbed) {
  const auto document = NewDocument();
  const auto other = NewDocument();
  WhileInUse(document, [&] { InAnotherThread([&] { AddPage(other); }); });
}

TEST(CUsage, LettingGoDisturbsNobody) {
  const auto document = NewDocument();
  const auto page = AddPage(document);
  std::atomic<bool> isDone = false;
  std::thread other([&] {
    while (!isDone) {
      folivar_retain(page);
      folivar_release(page);
    }
  });
  for (int i = 0; i < 20000; ++i) {
    AddTextBox(page);  // let go of at once
    ASSERT_EQ(folivar_PDFPage_SetWidth(page, 100), 0) << LastText();
  }
  isDone = true;
  other.join();
}

TEST(CUsage, TheLastHoldMayGoInAnotherThread) {
  const auto document = NewDocument();
  const auto page = AddPage(document);
  for (int round = 0; round < 200; ++round) {
    std::vector<Held<folivar_PDFTextBox>> boxes;
    for (int i = 0; i < 20; ++i) boxes.push_back(AddTextBox(page));
    std::thread other([&] { boxes.clear(); });
    for (int i = 0; i < 50; ++i) ASSERT_EQ(folivar_PDFPage_SetWidth(page, 100), 0) << LastText();
    other.join();
  }
}

void CountRelease(void* count) { ++*static_cast<std::atomic<int>*>(count); }

TEST(CUsage, WhatASecondThreadLetsGoOfEndsWhenTheFirstIsDone) {
  std::atomic<int> ended = 0;
  const auto document = NewDocument();
  auto page = AddPage(document, "a");
  folivar_value tag = folivar_missing();
  tag.kind = FOLIVAR_HOST;
  tag.as.host = &ended;
  tag.with.release = CountRelease;
  ASSERT_EQ(folivar_PDFPage_SetTag(page, tag), 0);
  ASSERT_EQ(folivar_PDFPages_Remove(PagesOf(document), folivar_text("a")), 0);
  WhileInUse(document, [&] {
    InAnotherThread([&] { page = Held<folivar_PDFPage>(); });
    EXPECT_EQ(ended, 0);
  });
  EXPECT_EQ(ended, 1);
}

TEST(CUsage, WhatWaitsForItsEndMayBeHeldAgain) {
  const auto document = NewDocument();
  auto page = AddPage(document, "a");
  WhileInUse(document, [&] {
    InAnotherThread([&] { page = Held<folivar_PDFPage>(); });
    folivar_PDFPage* again = nullptr;
    ASSERT_EQ(folivar_PDFPages_Item(PagesOf(document), folivar_text("a"), &again), 0);
    page = Held<folivar_PDFPage>(again);
    InAnotherThread([&] {
      folivar_retain(page);
      folivar_release(page);
    });
  });
  EXPECT_EQ(KeyOf(page), "a");
}

TEST(CUsage, ManyThreadsFightForOneDocument) {
  const auto document = NewDocument();
  std::atomic<int> drawn = 0;
  std::atomic<int> refused = 0;
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&] {
      for (int call = 0; call < 500; ++call) {
        folivar_PDFPages* pages = nullptr;
        folivar_PDFPage* page = nullptr;
        if (folivar_PDFDocument_Pages(document, &pages) == 0 &&
            folivar_PDFPages_Add(pages, "", folivar_missing(), folivar_missing(), &page) == 0 &&
            folivar_PDFPage_DrawText(page, "a", 1, 2) == 0) {
          ++drawn;
        } else {
          EXPECT_EQ(folivar_last_error()->number, 70) << LastText();
          ++refused;
        }
        folivar_release(page);
        folivar_release(pages);
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(drawn + refused, 2000);
  EXPECT_GT(drawn, 0);
  std::int32_t count = 0;
  ASSERT_EQ(folivar_PDFPages_count(PagesOf(document), &count), 0);
  EXPECT_GE(count, drawn);
}

}  // namespace
}  // namespace folivar::test
