#include "folivar/textbox/RichText.h"

#include <algorithm>
#include <array>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "folivar/base/Error.h"
#include "folivar/base/Internal.h"

namespace folivar {
namespace {

constexpr std::int64_t kLongest = std::numeric_limits<std::int32_t>::max();

// With "\n" for every "\r\n" and every other "\r".
Text WithLineFeeds(TextView text) {
  Text converted(text);
  if (!text.IsUtf16() && text.Utf8().find('\r') == std::string_view::npos) return converted;
  const std::u16string& units = converted.Utf16();
  std::size_t next = units.find(u'\r');
  if (next == std::u16string::npos) return converted;
  std::u16string result;
  result.reserve(units.size());
  std::size_t start = 0;
  for (; next != std::u16string::npos; next = units.find(u'\r', start)) {
    result.append(units, start, next - start).push_back(u'\n');
    start = next + 1;
    if (start < units.size() && units[start] == u'\n') ++start;
  }
  result.append(units, start);
  return Text::Of(std::move(result));
}

std::int32_t LengthOf(std::size_t units) {
  if (units > static_cast<std::size_t>(kLongest)) {
    throw Error::Overflow("a text of " + std::to_string(units) +
                          " UTF-16 units is too long for a text box");
  }
  return static_cast<std::int32_t>(units);
}

std::int32_t LengthOf(const Text& text) { return LengthOf(text.Utf16().size()); }

// Lengths that are out of step with the text may add up to any number.
std::int32_t AsLength(std::int64_t length) {
  return static_cast<std::int32_t>(std::min(length, kLongest));
}
std::int32_t SumOf(std::int32_t a, std::int32_t b) { return AsLength(std::int64_t{a} + b); }

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

// `outcome` is what has been done all the same.
[[noreturn]] void RaiseNoSuchRun(std::size_t number, std::size_t count, const char* outcome) {
  throw Error::SubscriptOutOfRange("position " + std::to_string(number) + " is outside 1 to " +
                                   std::to_string(count) + " in the runs of the text box; " +
                                   outcome);
}

}  // namespace

RichText::RichText(RunFont font) : runs_(EmptyRun(std::move(font))) {}

void RichText::SetText(TextView text) {
  folivar::Text newText = WithLineFeeds(text);
  const std::int32_t length = LengthOf(newText);
  text_ = std::move(newText);
  selStart_ = std::min(selStart_, length);
  selEnd_ = std::min(selEnd_, length);
  RemoveOtherRuns();
  runs_.SetLength(0, length);
  selStart_ = length;
  selEnd_ = length;
}

void RichText::SetSelStart(std::int32_t start) {
  selStart_ = std::clamp(start, 0, LengthOf(text_));
  selEnd_ = selStart_;
}

void RichText::SetSelLength(std::int32_t length) {
  const std::int64_t end = std::int64_t{selStart_} + length;
  if (end > kLongest) {
    throw Error::Overflow("a selection from " + std::to_string(selStart_) + " of length " +
                          std::to_string(length) + " ends beyond what 32 bits can say");
  }
  if (length >= 0) {
    selEnd_ = std::min(static_cast<std::int32_t>(end), LengthOf(text_));
  } else {
    selEnd_ = selStart_;
    selStart_ = static_cast<std::int32_t>(std::max<std::int64_t>(end, 0));
  }
}

folivar::Text RichText::SelText() const {
  return folivar::Text(
      std::u16string_view(text_.Utf16())
          .substr(static_cast<std::size_t>(selStart_), static_cast<std::size_t>(SelLength())));
}

// In place, so that a text that grows piece by piece is not copied for each.
void RichText::SetSelText(TextView text) {
  const folivar::Text inserted = WithLineFeeds(text);
  const std::int32_t length = LengthOf(inserted);
  const auto removed = static_cast<std::size_t>(SelLength());
  std::u16string& units = text_.Units(Internal());
  const std::size_t size = units.size() - removed + inserted.Utf16().size();
  LengthOf(size);
  // The text must not fail any more once the runs are changed.
  if (size > units.capacity()) units.reserve(std::max(size, 2 * units.capacity()));
  ResizeSelectedRuns(length);
  units.replace(static_cast<std::size_t>(selStart_), removed, inserted.Utf16());
  selStart_ += length;
  selEnd_ = selStart_;
}

std::shared_ptr<PDFFont> RichText::SelFont() {
  const Found found = FindSelectionRuns(Selection());
  return found.IsOneRun() ? runs_.FontOf(found.first.index).HandOut() : nullptr;
}

void RichText::SetSelFont(std::shared_ptr<PDFFont> font) {
  const RunFont runFont(std::move(font));
  ChangeRuns(Selection(), [&](TEXT_FORMAT_RANGE& run) { run.Font = runFont; });
}

float RichText::SelFontSize() const {
  const TEXT_FORMAT_RANGE* run = SelectedRun();
  return run != nullptr ? run->Font->Size() : 0;
}

void RichText::SetSelFontSize(float points) {
  ChangeRuns(Selection(), [&](TEXT_FORMAT_RANGE& run) { run.Font.Own().SetSize(points); });
}

std::optional<std::int32_t> RichText::SelColor() const {
  const TEXT_FORMAT_RANGE* run = SelectedRun();
  return run != nullptr ? std::optional(run->Color) : std::nullopt;
}

// Deliberate: the runs are split before the value is looked at, and stay so if it is no colour; so
// with flags.
void RichText::SetSelColor(const Value& color) {
  ChangeRuns(Selection(), [&](TEXT_FORMAT_RANGE& run) { run.Color = Int32From(color); });
}

PDFParaAlignment RichText::SelAlignment() const {
  const TEXT_FORMAT_RANGE* run = SelectedRun();
  return run != nullptr ? run->Alignment : alignNULL;
}

void RichText::SetSelAlignment(PDFParaAlignment alignment) {
  if (alignment == alignNULL) return;
  ChangeRuns(GetParagraphBounds(), [&](TEXT_FORMAT_RANGE& run) { run.Alignment = alignment; });
}

std::optional<bool> RichText::SelFlag(bool (PDFFont::*flag)() const) const {
  const TEXT_FORMAT_RANGE* run = SelectedRun();
  return run != nullptr ? std::optional(((*run->Font).*flag)()) : std::nullopt;
}

void RichText::SetSelFlag(void (PDFFont::*setFlag)(bool), const Value& value) {
  ChangeRuns(Selection(), [&](TEXT_FORMAT_RANGE& run) {
    const bool flag = BoolFrom(value);
    (run.Font.Own().*setFlag)(flag);
  });
}

void RichText::CopyFrom(const RichText& source) {
  if (this == &source) return;
  folivar::Text text = source.text_;
  std::vector<TEXT_FORMAT_RANGE> runs;
  runs.reserve(source.runs_.Count());
  source.runs_.ForEach([&](const TEXT_FORMAT_RANGE& run) { runs.push_back(CopyOf(run)); });
  runs_.Replace(0, runs_.Count(), runs);
  text_ = std::move(text);
  selStart_ = source.selStart_;
  selEnd_ = source.selEnd_;
}

// Deliberate: a paragraph begins on the "\n" before it, and the last one ends one unit early.
RichText::Range RichText::GetParagraphBounds() const {
  const std::u16string& units = text_.Utf16();
  if (units.empty()) return {0, 0};
  const std::size_t before = units.rfind(u'\n', static_cast<std::size_t>(selStart_));
  const std::size_t behind = units.find(u'\n', static_cast<std::size_t>(selEnd_));
  const std::size_t start = before == std::u16string::npos ? 0 : before;
  const std::size_t end = behind == std::u16string::npos ? units.size() - 1 : behind;
  return {static_cast<std::int64_t>(start), static_cast<std::int64_t>(end)};
}

RichText::Found RichText::FindSelectionRuns(Range range) const {
  const RunList::Place first = runs_.FindStart(range.start);
  return {first, runs_.FindEnd(first, range.end)};
}

// The one that holds the selection; null when several do.
const TEXT_FORMAT_RANGE* RichText::SelectedRun() const {
  const Found found = FindSelectionRuns(Selection());
  return found.IsOneRun() ? &runs_[found.first.index] : nullptr;
}

std::int64_t RichText::EndOf(RunList::Place place) const {
  const std::int64_t end = place.start + runs_[place.index].Length;
  return runs_.IsLast(place.index) ? std::max<std::int64_t>(end, LengthOf(text_)) : end;
}

// Makes a range of the run at `place` a run of its own and returns its index. No other piece is
// made empty.
std::size_t RichText::SplitRun(Range range, RunList::Place place) {
  const std::int64_t after = EndOf(place) - range.end;
  std::array<std::int32_t, 3> lengths{};
  std::size_t count = 0;
  if (range.start > place.start) lengths[count++] = AsLength(range.start - place.start);
  lengths[count++] = AsLength(range.end - range.start);
  const std::size_t index = place.index + count - 1;
  if (after > 0) lengths[count++] = AsLength(after);
  runs_.Split(place.index, std::span(lengths).first(count));
  return index;
}

RichText::Stretch RichText::SplitRunsAtSelection(Range range) {
  const Found found = FindSelectionRuns(range);
  if (found.IsOneRun()) {
    const std::size_t index = SplitRun(range, found.first);
    return {index, index};
  }
  const std::size_t first = SplitRun({range.start, EndOf(found.first)}, found.first);
  RunList::Place last = found.last;
  last.index += first - found.first.index;
  return {first, SplitRun({last.start, range.end}, last)};
}

// Whether some neighbours are, from `first` up to `last`.
bool RichText::AnyAreAlike(std::size_t first, std::size_t last) {
  const TEXT_FORMAT_RANGE* before = nullptr;
  bool areAlike = false;
  runs_.ForEach(first, last, [&](const TEXT_FORMAT_RANGE& run) {
    areAlike = areAlike || (before != nullptr && before->IsFormatEquivalent(run));
    before = &run;
  });
  return areAlike;
}

void RichText::MergeEquivalentRuns(Stretch stretch) {
  const std::size_t end = std::min(stretch.last + 2, runs_.Count());
  if (AnyAreAlike(stretch.first, end)) {
    std::vector<TEXT_FORMAT_RANGE> merged;
    runs_.ForEach(stretch.first, end, [&](const TEXT_FORMAT_RANGE& run) {
      if (!merged.empty() && merged.back().IsFormatEquivalent(run)) {
        merged.back().Length = SumOf(merged.back().Length, run.Length);
      } else {
        merged.push_back(run);
      }
    });
    runs_.Replace(stretch.first, end, merged);
  }

  if (stretch.first == 0) return;
  const TEXT_FORMAT_RANGE& before = runs_[stretch.first - 1];
  const TEXT_FORMAT_RANGE& run = runs_[stretch.first];
  if (!before.IsFormatEquivalent(run)) return;
  runs_.SetLength(stretch.first, SumOf(before.Length, run.Length));
  runs_.Erase(stretch.first - 1, stretch.first);
}

// `change` gets each of the runs that exactly cover the range, at least one.
template <class Change>
void RichText::ChangeRuns(Range range, Change change) {
  const Stretch stretch = SplitRunsAtSelection(range);
  runs_.ForEach(stretch.first, stretch.last + 1, change);
  MergeEquivalentRuns(stretch);
}

// As the selection is replaced by `newLength` units; the text is still the one before.
void RichText::ResizeSelectedRuns(std::int32_t newLength) {
  const Found found = FindSelectionRuns(Selection());
  const std::int64_t before = selStart_ - found.first.start;
  const std::int64_t end = found.last.start + runs_[found.last.index].Length;
  const std::int64_t after = std::max<std::int64_t>(end - selEnd_, 0);
  if (found.IsOneRun()) {
    runs_.SetLength(found.first.index, AsLength(before + newLength + after));
    return;
  }
  const std::size_t last = found.first.index + 1;
  runs_.Erase(last, found.last.index);
  runs_.SetLength(last, AsLength(after));
  if (after > 0) return;
  if (found.last.index >= runs_.Count()) {
    RaiseNoSuchRun(found.last.index + 1, runs_.Count(), "the text is as it was");
  }
  runs_.Erase(found.last.index, found.last.index + 1);
}

// Of one or two runs leaves the first. Removing numbers 2, 3, ... of more, one after the other,
// removes every other one and meets a number that is no longer there.
void RichText::RemoveOtherRuns() {
  const std::size_t count = runs_.Count();
  std::vector<TEXT_FORMAT_RANGE> kept;
  std::size_t index = 0;
  runs_.ForEach([&](const TEXT_FORMAT_RANGE& run) {
    if (index > 0 && index % 2 == 0) kept.push_back(run);
    ++index;
  });
  runs_.Replace(1, count, kept);
  if (count >= 3) {
    RaiseNoSuchRun(count / 2 + 2, runs_.Count(), "the text is set, and every other format is gone");
  }
}

}  // namespace folivar
