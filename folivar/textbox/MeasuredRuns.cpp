#include "folivar/textbox/MeasuredRuns.h"

#include <algorithm>

namespace folivar {

MeasuredRuns::MeasuredRuns(std::string_view text, const RunList& runs) {
  runs_.reserve(runs.Count());
  std::size_t start = 0;
  std::size_t index = 0;
  runs.ForEach([&](const TEXT_FORMAT_RANGE& run) {
    const std::size_t end =
        runs.IsLast(index++) ? text.size()
                             : std::min(start + static_cast<std::size_t>(run.Length), text.size());
    if (end > start) {
      runs_.push_back({end, static_cast<std::uint32_t>(FormatOf(run)), run.Alignment});
    }
    start = end;
  });
}

// A text changes to and fro between few formats, so that looking at the newest finds nearly all.
std::size_t MeasuredRuns::FormatOf(const TEXT_FORMAT_RANGE& run) {
  constexpr std::size_t kNewest = 8;
  const std::size_t oldest = formats_.size() - std::min(formats_.size(), kNewest);
  for (std::size_t number = formats_.size(); number > oldest; --number) {
    if (formats_[number - 1].IsOf(run)) return number - 1;
  }
  formats_.emplace_back(run, formats_.size());
  return formats_.size() - 1;
}

}  // namespace folivar
