#pragma once

#include <cstddef>
#include <cstdint>

#include "folivar/textbox/RunList.h"

namespace folivar {

// The runs that together cover a text box's text, and how they follow its editing. They know the
// text by its length only: each run's format holds for as many units as its length says.
//
// Two operations may leave the runs out of step with the text (ReplaceText, ResetText). Then the
// last run takes what is left of the text, and what lies beyond the text's end does not count.
//
// Positions are UTF-16 units from 0; 0 <= start <= end <= the text's length.
class TextRuns {
 public:
  // One empty run in this font, black and at the left.
  explicit TextRuns(RunFont font);

  const RunList& List() const { return list_; }

  // The runs in which a stretch of the text begins and ends. A boundary belongs to the run behind
  // it at the start and to the run before it at the end.
  struct Found {
    RunList::Place first;
    RunList::Place last;

    bool IsOneRun() const { return first.index == last.index; }
  };
  Found FindSelectionRuns(std::int64_t start, std::int64_t end) const;

  // The indices of the first and the last of some neighbouring runs.
  struct Stretch {
    std::size_t first;
    std::size_t last;
  };

  // Splits runs so that some of them exactly cover the stretch of the text; for an empty one it is
  // an empty run. Of a run that is split the first piece keeps the font object, the others have
  // clones.
  Stretch SplitRunsAtSelection(std::int64_t start, std::int64_t end, std::int64_t textLength);

  // Visits the runs of the stretch; the visitor leaves the length alone.
  template <class Visit>
  void ForEach(Stretch stretch, Visit visit) {
    list_.ForEach(stretch.first, stretch.last + 1, visit);
  }

  // Joins neighbours of the same format in and around the stretch. What is joined keeps the font
  // object of its first run, except that the run before the stretch gives way to the stretch.
  void MergeEquivalentRuns(Stretch stretch);

  // The text from `start` to `end` has been replaced by `newLength` units; `textLength` is that of
  // the text before.
  //
  // Deliberate: when several runs are touched, the first keeps its length, so that the lengths no
  // longer add up to the text; and when nothing is left of the last one, the run that now has the
  // number that the last one had is removed: not itself if runs between were removed. Raises 9 when
  // there is no run of that number, with the runs between removed.
  void ReplaceText(std::int64_t start, std::int64_t end, std::int32_t newLength,
                   std::int64_t textLength);

  // The whole text has been replaced.
  //
  // Deliberate: of three runs or more every other one is removed, and then 9 is raised; the first
  // run's length is not set then.
  void ResetText(std::int32_t newLength);

  // The same runs with fonts of their own.
  void CopyFrom(const TextRuns& source);

 private:
  std::int64_t EndOf(RunList::Place place, std::int64_t textLength) const;
  std::size_t SplitRun(std::int64_t from, std::int64_t to, RunList::Place place,
                       std::int64_t textLength);
  bool AnyAreAlike(std::size_t first, std::size_t last);

  RunList list_;
};

}  // namespace folivar
