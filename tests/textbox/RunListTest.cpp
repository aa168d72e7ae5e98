#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "folivar/textbox/RunList.h"
#include "tests/support/Random.h"

namespace folivar::test {
namespace {

// A run without a font; its colour tells it from others.
TEXT_FORMAT_RANGE MakeRun(std::int32_t length, std::int32_t color = 0) {
  TEXT_FORMAT_RANGE run;
  run.Length = length;
  run.Color = color;
  return run;
}

RunList ListOf(const std::vector<std::int32_t>& lengths) {
  RunList list(MakeRun(0));
  std::vector<TEXT_FORMAT_RANGE> runs;
  for (const std::int32_t length : lengths) {
    runs.push_back(MakeRun(length, static_cast<std::int32_t>(runs.size())));
  }
  list.Replace(0, 1, runs);
  return list;
}

void ExpectPlace(RunList::Place place, std::size_t index, std::int64_t start) {
  EXPECT_EQ(place.index, index);
  EXPECT_EQ(place.start, start);
}

TEST(RunList, ABoundaryBelongsToTheRunBehindItAtTheStart) {
  const RunList list = ListOf({3, 4, 5});
  ExpectPlace(list.FindStart(2), 0, 0);
  ExpectPlace(list.FindStart(3), 1, 3);
  ExpectPlace(list.FindStart(7), 2, 7);
}

TEST(RunList, ABoundaryBelongsToTheRunBeforeItAtTheEnd) {
  const RunList list = ListOf({3, 4, 5});
  ExpectPlace(list.FindEnd({0, 0}, 3), 0, 0);
  ExpectPlace(list.FindEnd({0, 0}, 4), 1, 3);
  ExpectPlace(list.FindEnd({0, 0}, 7), 1, 3);
  ExpectPlace(list.FindEnd({0, 0}, 12), 2, 7);
}

TEST(RunList, AnEmptyRunTakesItsPosition) {
  const RunList list = ListOf({3, 0, 4});
  ExpectPlace(list.FindStart(3), 1, 3);
  ExpectPlace(list.FindEnd({1, 3}, 3), 1, 3);
}

TEST(RunList, PositionZeroIsTheFirstRuns) {
  ExpectPlace(ListOf({0, 0, 4}).FindStart(0), 0, 0);
  ExpectPlace(ListOf({4, 4}).FindStart(0), 0, 0);
}

TEST(RunList, PositionsBeyondTheRunsAreTheLastRuns) {
  const RunList list = ListOf({3, 4});
  ExpectPlace(list.FindStart(7), 1, 3);
  ExpectPlace(list.FindStart(100), 1, 3);
  ExpectPlace(list.FindEnd({0, 0}, 100), 1, 3);
}

TEST(RunList, TheFirstPieceOfARunIsTheRunItself) {
  RunList list = ListOf({3, 4, 5});
  list.Split(1, std::vector<std::int32_t>{1, 0, 3});
  EXPECT_EQ(list.Count(), 5U);
  ExpectPlace(list.FindStart(4), 2, 4);
  EXPECT_EQ(list[3].Length, 3);
  EXPECT_EQ(list[3].Color, 1);
  list.Split(4, std::vector<std::int32_t>{7});
  EXPECT_EQ(list.Count(), 5U);
  EXPECT_EQ(list[4].Length, 7);
}

TEST(RunList, WhatWasFoundLastIsForgottenWithItsRun) {
  RunList list = ListOf({3, 4, 5});
  ExpectPlace(list.FindStart(9), 2, 7);
  list.Erase(2, 3);
  ExpectPlace(list.FindStart(9), 1, 3);
  list.SetLength(0, 8);
  ExpectPlace(list.FindStart(9), 1, 8);
  list.Erase(0, 1);
  ExpectPlace(list.FindStart(9), 0, 0);
}

// The same as one vector, walked from the front.
class Model {
 public:
  std::vector<TEXT_FORMAT_RANGE> runs{MakeRun(0)};

  RunList::Place FindStart(std::int64_t position) const {
    RunList::Place place{0, 0};
    if (position == 0) return place;
    while (place.index + 1 < runs.size()) {
      const std::int64_t length = runs[place.index].Length;
      if (position < place.start + length || (length == 0 && position == place.start)) break;
      place.start += length;
      ++place.index;
    }
    return place;
  }

  RunList::Place FindEnd(RunList::Place place, std::int64_t position) const {
    while (place.index + 1 < runs.size() && position > place.start + runs[place.index].Length) {
      place.start += runs[place.index++].Length;
    }
    return place;
  }

  std::int64_t Length() const {
    std::int64_t length = 0;
    for (const TEXT_FORMAT_RANGE& run : runs) length += run.Length;
    return length;
  }
};

void ExpectSame(const RunList& list, const Model& model) {
  ASSERT_EQ(list.Count(), model.runs.size());
  std::size_t index = 0;
  list.ForEach([&](const TEXT_FORMAT_RANGE& run) {
    ASSERT_EQ(run.Color, model.runs[index].Color) << index;
    ASSERT_EQ(run.Length, model.runs[index].Length) << index;
    ASSERT_EQ(&list[index], &run);
    ++index;
  });
}

// Grows beyond many blocks, shrinks to a few runs, and grows again.
TEST(RunList, IsTheSameAsAVector) {
  Random random;
  SCOPED_TRACE(random.Trace());
  RunList list(MakeRun(0));
  Model model;
  std::int32_t color = 0;
  bool isGrowing = true;
  for (int step = 0; step < 6000; ++step) {
    if (model.runs.size() > 3000) isGrowing = false;
    if (model.runs.size() < 10) isGrowing = true;
    const std::size_t first = random.Below(model.runs.size() + 1);
    const std::size_t most = random.Chance(2) ? 600 : 4;
    const std::size_t removed =
        std::min(random.Below(isGrowing ? 2 : most), model.runs.size() - first);
    std::size_t added = random.Below(isGrowing ? most : 2);
    if (model.runs.size() - removed + added == 0) added = 1;
    std::vector<TEXT_FORMAT_RANGE> with;
    while (with.size() < added) {
      with.push_back(MakeRun(static_cast<std::int32_t>(random.Below(4)), ++color));
    }
    const auto at = [&](std::size_t index) {
      return model.runs.begin() + static_cast<std::ptrdiff_t>(index);
    };
    model.runs.erase(at(first), at(first + removed));
    model.runs.insert(at(first), with.begin(), with.end());
    list.Replace(first, first + removed, with);

    const std::size_t changed = random.Below(model.runs.size());
    model.runs[changed].Length = static_cast<std::int32_t>(random.Below(4));
    list.SetLength(changed, model.runs[changed].Length);

    const std::size_t cut = random.Below(model.runs.size());
    std::vector<std::int32_t> lengths;
    for (std::size_t count = isGrowing ? 1 + random.Below(3) : 1; count > 0; --count) {
      lengths.push_back(static_cast<std::int32_t>(random.Below(4)));
    }
    model.runs.insert(at(cut), lengths.size() - 1, TEXT_FORMAT_RANGE(model.runs[cut]));
    for (std::size_t piece = 0; piece < lengths.size(); ++piece) {
      model.runs[cut + piece].Length = lengths[piece];
    }
    list.Split(cut, lengths);

    const std::size_t from = random.Below(model.runs.size());
    const std::size_t to = from + random.Below(model.runs.size() - from + 1);
    for (std::size_t index = from; index < to; ++index) model.runs[index].Color += 1000000;
    list.ForEach(from, to, [](TEXT_FORMAT_RANGE& run) { run.Color += 1000000; });

    const auto length = static_cast<std::size_t>(model.Length());
    const auto start = static_cast<std::int64_t>(random.Below(length + 3));
    const auto end = start + static_cast<std::int64_t>(random.Below(length + 3));
    const RunList::Place startPlace = model.FindStart(start);
    ExpectPlace(list.FindStart(start), startPlace.index, startPlace.start);
    const RunList::Place endPlace = model.FindEnd(startPlace, end);
    ExpectPlace(list.FindEnd(startPlace, end), endPlace.index, endPlace.start);
    if (step % 50 == 0) ExpectSame(list, model);
    if (HasFailure()) FAIL() << "at step " << step;
  }
  ExpectSame(list, model);
}

}  // namespace
}  // namespace folivar::test
