#include "tests/support/RichTextModel.h"

#include <algorithm>

namespace folivar::test {
namespace {

bool AreAlike(const RichTextModel::Run& a, const RichTextModel::Run& b) {
  return a.color == b.color && a.alignment == b.alignment && *a.font == *b.font;
}

RichTextModel::Run CopyOf(const RichTextModel::Run& run) {
  RichTextModel::Run copy = run;
  copy.font = std::make_shared<RichTextModel::Font>(*run.font);
  return copy;
}

std::u16string WithLineFeeds(const std::u16string& text) {
  std::u16string result;
  for (std::size_t place = 0; place < text.size(); ++place) {
    const bool isPair = text[place] == u'\r' && text.substr(place, 2) == u"\r\n";
    if (isPair) continue;
    result += text[place] == u'\r' ? u'\n' : text[place];
  }
  return result;
}

}  // namespace

RichTextModel::RichTextModel() {
  runs_.emplace_back();
  runs_[0].font = std::make_shared<Font>();
}

std::u16string RichTextModel::SelText() const {
  return text_.substr(static_cast<std::size_t>(start_), static_cast<std::size_t>(end_ - start_));
}

void RichTextModel::Find(std::int64_t start, std::int64_t end, Place& first, Place& last) const {
  first = {0, 0};
  if (start != 0) {
    while (first.index + 1 < runs_.size()) {
      const std::int64_t length = runs_[first.index].length;
      if (start < first.start + length) break;
      if (length == 0 && start == first.start) break;
      first.start += length;
      ++first.index;
    }
  }
  last = first;
  while (last.index + 1 < runs_.size() && last.start + runs_[last.index].length < end) {
    last.start += runs_[last.index].length;
    ++last.index;
  }
}

std::int64_t RichTextModel::EndOf(Place place) const {
  const std::int64_t end = place.start + runs_[place.index].length;
  return place.index + 1 == runs_.size() ? std::max(end, Length()) : end;
}

std::optional<RichTextModel::Run> RichTextModel::Selected() const {
  Place first{};
  Place last{};
  Find(start_, end_, first, last);
  if (first.index != last.index) return std::nullopt;
  return runs_[first.index];
}

int RichTextModel::SetText(const std::u16string& text) {
  text_ = WithLineFeeds(text);
  start_ = std::min(start_, Length());
  end_ = std::min(end_, Length());
  const std::size_t count = runs_.size();
  for (std::size_t number = 2; number <= count; ++number) {
    if (number > runs_.size()) return 9;
    runs_.erase(runs_.begin() + static_cast<std::ptrdiff_t>(number) - 1);
  }
  runs_[0].length = Length();
  start_ = end_ = Length();
  return 0;
}

int RichTextModel::SetSelText(const std::u16string& text) {
  const std::u16string inserted = WithLineFeeds(text);
  const auto added = static_cast<std::int64_t>(inserted.size());
  Place first{};
  Place last{};
  Find(start_, end_, first, last);
  const std::int64_t before = start_ - first.start;
  const std::int64_t after =
      std::max<std::int64_t>(runs_[last.index].length - (end_ - last.start), 0);
  if (first.index == last.index) {
    runs_[first.index].length = before + added + after;
  } else {
    for (std::size_t between = first.index + 1; between < last.index; ++between) {
      runs_.erase(runs_.begin() + static_cast<std::ptrdiff_t>(first.index) + 1);
    }
    runs_[first.index + 1].length = after;
    if (after == 0) {
      if (last.index >= runs_.size()) return 9;
      runs_.erase(runs_.begin() + static_cast<std::ptrdiff_t>(last.index));
    }
  }
  text_ = text_.substr(0, static_cast<std::size_t>(start_)) + inserted +
          text_.substr(static_cast<std::size_t>(end_));
  start_ += added;
  end_ = start_;
  return 0;
}

void RichTextModel::SetSelStart(std::int64_t start) {
  start_ = std::clamp<std::int64_t>(start, 0, Length());
  end_ = start_;
}

void RichTextModel::SetSelLength(std::int64_t length) {
  const std::int64_t other = start_ + length;
  if (length < 0) {
    end_ = start_;
    start_ = std::max<std::int64_t>(other, 0);
  } else {
    end_ = std::min(other, Length());
  }
}

std::size_t RichTextModel::Split(std::int64_t from, std::int64_t to, Place place) {
  const Run run = runs_[place.index];
  std::vector<Run> pieces;
  const auto add = [&](std::int64_t length) {
    pieces.push_back(pieces.empty() ? run : CopyOf(run));
    pieces.back().length = length;
  };
  const std::int64_t end = EndOf(place);
  if (from > place.start) add(from - place.start);
  add(to - from);
  const std::size_t wanted = place.index + pieces.size() - 1;
  if (end > to) add(end - to);
  const auto old = runs_.begin() + static_cast<std::ptrdiff_t>(place.index);
  runs_.insert(runs_.erase(old), pieces.begin(), pieces.end());
  return wanted;
}

RichTextModel::Stretch RichTextModel::SplitAt(std::int64_t start, std::int64_t end) {
  Place first{};
  Place last{};
  Find(start, end, first, last);
  if (first.index == last.index) {
    const std::size_t only = Split(start, end, first);
    return {only, only};
  }
  if (start != first.start) ++last.index;
  const std::size_t firstPiece = Split(start, EndOf(first), first);
  return {firstPiece, Split(last.start, end, last)};
}

void RichTextModel::Merge(Stretch stretch) {
  for (std::size_t index = stretch.last + 1; index-- > stretch.first;) {
    if (index + 1 < runs_.size() && AreAlike(runs_[index], runs_[index + 1])) {
      runs_[index].length += runs_[index + 1].length;
      runs_.erase(runs_.begin() + static_cast<std::ptrdiff_t>(index) + 1);
    }
  }
  const std::size_t first = stretch.first;
  if (first > 0 && AreAlike(runs_[first - 1], runs_[first])) {
    runs_[first].length += runs_[first - 1].length;
    runs_.erase(runs_.begin() + static_cast<std::ptrdiff_t>(first) - 1);
  }
}

void RichTextModel::SetSelAlignment(PDFParaAlignment alignment) {
  if (alignment == alignNULL) return;
  std::int64_t end = end_;
  while (end < Length() && text_[static_cast<std::size_t>(end)] != u'\n') ++end;
  if (end >= Length()) end = Length() - 1;
  std::int64_t start = std::min(start_, Length() - 1);
  while (start > 0 && text_[static_cast<std::size_t>(start)] != u'\n') --start;
  if (text_.empty()) start = end = 0;
  ChangeRuns(start, end, [&](Run& run) { run.alignment = alignment; });
}

void RichTextModel::CopyFrom(const RichTextModel& source) {
  if (this == &source) return;
  text_ = source.text_;
  start_ = source.start_;
  end_ = source.end_;
  runs_.clear();
  for (const Run& run : source.runs_) runs_.push_back(CopyOf(run));
}

}  // namespace folivar::test
