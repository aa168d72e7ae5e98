#include "folivar/textbox/TextRuns.h"

#include <algorithm>
#include <array>
#include <limits>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "folivar/base/Error.h"

namespace folivar {
namespace {

constexpr std::int64_t kLongest = std::numeric_limits<std::int32_t>::max();

TEXT_FORMAT_RANGE EmptyRun(RunFont font) {
  TEXT_FORMAT_RANGE run;
  run.Font = std::move(font);
  return run;
}

TEXT_FORMAT_RANGE CopyOf(const TEXT_FORMAT_RANGE& source) {
  TEXT_FORMAT_RANGE copy;
  copy.CopyFrom(source);
  return copy;
}

// Lengths that are out of step with the text may add up to any number.
std::int32_t AsLength(std::int64_t length) {
  return static_cast<std::int32_t>(std::min(length, kLongest));
}
std::int32_t SumOf(std::int32_t a, std::int32_t b) { return AsLength(std::int64_t{a} + b); }

[[noreturn]] void RaiseNoSuchRun(std::size_t number, std::size_t count) {
  throw Error::SubscriptOutOfRange("position " + std::to_string(number) + " is outside 1 to " +
                                   std::to_string(count) + " in the runs of the text box");
}

}  // namespace

TextRuns::TextRuns(RunFont font) : list_(EmptyRun(std::move(font))) {}

TextRuns::Found TextRuns::FindSelectionRuns(std::int64_t start, std::int64_t end) const {
  const RunList::Place first = list_.FindStart(start);
  return {first, list_.FindEnd(first, end)};
}

std::int64_t TextRuns::EndOf(RunList::Place place, std::int64_t textLength) const {
  const std::int64_t end = place.start + list_[place.index].Length;
  return list_.IsLast(place.index) ? std::max(end, textLength) : end;
}

// Makes from..to of the run at `place` a run of its own and returns its index. No other piece is
// made empty.
std::size_t TextRuns::SplitRun(std::int64_t from, std::int64_t to, RunList::Place place,
                               std::int64_t textLength) {
  const std::int64_t after = EndOf(place, textLength) - to;
  std::array<std::int32_t, 3> lengths{};
  std::size_t count = 0;
  if (from > place.start) lengths[count++] = AsLength(from - place.start);
  lengths[count++] = AsLength(to - from);
  const std::size_t index = place.index + count - 1;
  if (after > 0) lengths[count++] = AsLength(after);
  list_.Split(place.index, std::span(lengths).first(count));
  return index;
}

TextRuns::Stretch TextRuns::SplitRunsAtSelection(std::int64_t start, std::int64_t end,
                                                 std::int64_t textLength) {
  const Found found = FindSelectionRuns(start, end);
  if (found.IsOneRun()) {
    const std::size_t index = SplitRun(start, end, found.first, textLength);
    return {index, index};
  }
  const std::size_t first =
      SplitRun(start, EndOf(found.first, textLength), found.first, textLength);
  RunList::Place last = found.last;
  last.index += first - found.first.index;
  return {first, SplitRun(last.start, end, last, textLength)};
}

// Whether some neighbours are, from `first` up to `last`.
bool TextRuns::AnyAreAlike(std::size_t first, std::size_t last) {
  const TEXT_FORMAT_RANGE* before = nullptr;
  bool areAlike = false;
  list_.ForEach(first, last, [&](const TEXT_FORMAT_RANGE& run) {
    areAlike = areAlike || (before != nullptr && before->IsFormatEquivalent(run));
    before = &run;
  });
  return areAlike;
}

void TextRuns::MergeEquivalentRuns(Stretch stretch) {
  const std::size_t end = std::min(stretch.last + 2, list_.Count());
  if (AnyAreAlike(stretch.first, end)) {
    std::vector<TEXT_FORMAT_RANGE> merged;
    list_.ForEach(stretch.first, end, [&](const TEXT_FORMAT_RANGE& run) {
      if (!merged.empty() && merged.back().IsFormatEquivalent(run)) {
        merged.back().Length = SumOf(merged.back().Length, run.Length);
      } else {
        merged.push_back(run);
      }
    });
    list_.Replace(stretch.first, end, merged);
  }

  if (stretch.first == 0) return;
  const TEXT_FORMAT_RANGE& before = list_[stretch.first - 1];
  const TEXT_FORMAT_RANGE& run = list_[stretch.first];
  if (!before.IsFormatEquivalent(run)) return;
  list_.SetLength(stretch.first, SumOf(before.Length, run.Length));
  list_.Erase(stretch.first - 1, stretch.first);
}

void TextRuns::ReplaceText(std::int64_t start, std::int64_t end, std::int32_t newLength,
                           std::int64_t textLength) {
  const Found found = FindSelectionRuns(start, end);
  const std::int64_t before = start - found.first.start;
  const std::int64_t after = EndOf(found.last, textLength) - end;
  if (found.IsOneRun()) {
    list_.SetLength(found.first.index, AsLength(before + newLength + after));
    return;
  }
  const std::size_t last = found.first.index + 1;
  list_.Erase(last, found.last.index);
  list_.SetLength(last, AsLength(after));
  if (after > 0) return;
  if (found.last.index >= list_.Count()) RaiseNoSuchRun(found.last.index + 1, list_.Count());
  list_.Erase(found.last.index, found.last.index + 1);
}

void TextRuns::ResetText(std::int32_t newLength) {
  const std::size_t count = list_.Count();
  std::vector<TEXT_FORMAT_RANGE> kept;
  std::size_t index = 0;
  list_.ForEach([&](const TEXT_FORMAT_RANGE& run) {
    if (index > 0 && index % 2 == 0) kept.push_back(run);
    ++index;
  });
  list_.Replace(1, count, kept);
  // Removing numbers 2, 3, ... one after the other meets a number that is no longer there.
  if (count >= 3) RaiseNoSuchRun(count / 2 + 2, list_.Count());
  list_.SetLength(0, newLength);
}

void TextRuns::CopyFrom(const TextRuns& source) {
  if (this == &source) return;
  std::vector<TEXT_FORMAT_RANGE> runs;
  runs.reserve(source.list_.Count());
  source.list_.ForEach([&](const TEXT_FORMAT_RANGE& run) { runs.push_back(CopyOf(run)); });
  list_.Replace(0, list_.Count(), runs);
}

}  // namespace folivar
