#include "folivar/textbox/LaidRuns.h"

#include <algorithm>

namespace folivar {

LaidRun::LaidRun(const TEXT_FORMAT_RANGE& run, std::size_t end) : run_(&run), end_(end) {
  const FontMetrics metrics(*run.Font);
  face_ = &metrics.Face();
  characters_ = &face_->Characters();
  size_ = metrics.EffectiveSize();
  leading_ = metrics.Leading();
  isDecorated_ = run.Font->Underline() || run.Font->StrikeOut();
}

std::vector<LaidRun> LaidRunsOf(const RunList& runs, std::size_t textLength) {
  std::vector<LaidRun> laid;
  laid.reserve(runs.Count());
  std::size_t start = 0;
  std::size_t index = 0;
  runs.ForEach([&](const TEXT_FORMAT_RANGE& run) {
    const std::size_t end =
        runs.IsLast(index++) ? textLength
                             : std::min(start + static_cast<std::size_t>(run.Length), textLength);
    if (end > start) laid.emplace_back(run, end);
    start = end;
  });
  return laid;
}

}  // namespace folivar
