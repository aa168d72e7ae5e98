#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

#include "folivar/base/Text.h"
#include "folivar/base/Value.h"
#include "folivar/textbox/PDFParaAlignment.h"
#include "folivar/textbox/RunList.h"

namespace folivar {

// A text, the runs that say its formats, and a selection, which is edited as in a rich-text
// control. Knows no document; a PDFTextBox's members of the same names say what each does here.
//
// Two operations may leave the runs out of step with the text (SetText, SetSelText). Then the last
// run takes what is left of the text, and what lies beyond the text's end does not count.
class RichText {
 public:
  // No text, in one empty run of this font, black and at the left.
  explicit RichText(RunFont font);

  const folivar::Text& Text() const { return text_; }
  const RunList& Runs() const { return runs_; }

  // Deliberate: of three runs or more every other one is removed, and then 9 is raised; the first
  // run's length is not set then.
  void SetText(TextView text);

  std::int32_t SelStart() const { return selStart_; }
  void SetSelStart(std::int32_t start);
  std::int32_t SelLength() const { return selEnd_ - selStart_; }
  void SetSelLength(std::int32_t length);

  folivar::Text SelText() const;
  // Deliberate: when several runs are touched, the first keeps its length, so that the lengths no
  // longer add up to the text; and when nothing is left of the last one, the run that now has the
  // number that the last one had is removed: not itself if runs between were removed. Raises 9 when
  // there is no run of that number, with the runs between removed and the text as it was; so it may
  // be too when memory runs out.
  void SetSelText(TextView text);

  // Setters split runs so that some of them exactly cover the selection; for a caret it is an empty
  // run. Of a run that is split the first piece keeps the font object, the others have clones. Then
  // neighbours of the same format are joined in and around the selection: what is joined keeps the
  // font object of its first run, except that the run before the selection gives way to it.
  std::shared_ptr<PDFFont> SelFont();
  void SetSelFont(std::shared_ptr<PDFFont> font);
  float SelFontSize() const;
  void SetSelFontSize(float points);
  std::optional<std::int32_t> SelColor() const;
  void SetSelColor(const Value& color);
  PDFParaAlignment SelAlignment() const;
  void SetSelAlignment(PDFParaAlignment alignment);
  // A flag of the fonts, by its members there: &PDFFont::Bold and &PDFFont::SetBold.
  std::optional<bool> SelFlag(bool (PDFFont::*flag)() const) const;
  void SetSelFlag(void (PDFFont::*setFlag)(bool), const Value& value);

  // visit(const PDFFont&) for the runs in order that have text to draw: more than line ends.
  template <class Visit>
  void ForEachDrawnFont(Visit visit) const {
    const std::u16string_view units = text_.Utf16();
    std::size_t start = 0;
    std::size_t index = 0;
    runs_.ForEach([&](const TEXT_FORMAT_RANGE& run) {
      std::size_t length = units.size() - start;
      if (!runs_.IsLast(index++)) length = std::min(length, static_cast<std::size_t>(run.Length));
      const std::u16string_view part = units.substr(start, length);
      if (part.find_first_not_of(u'\n') != std::u16string_view::npos) visit(*run.Font);
      start += length;
    });
  }

  // The same text, formats and selection, with fonts of its own.
  void CopyFrom(const RichText& source);

 private:
  // Of the text, 0 <= start <= end <= its length.
  struct Range {
    std::int64_t start;
    std::int64_t end;
  };
  // The runs in which a range begins and ends. A boundary belongs to the run behind it at the start
  // and to the run before it at the end.
  struct Found {
    RunList::Place first;
    RunList::Place last;

    bool IsOneRun() const { return first.index == last.index; }
  };
  // The indices of the first and the last of some neighbouring runs.
  struct Stretch {
    std::size_t first;
    std::size_t last;
  };

  Range Selection() const { return {selStart_, selEnd_}; }
  Range GetParagraphBounds() const;
  Found FindSelectionRuns(Range range) const;
  const TEXT_FORMAT_RANGE* SelectedRun() const;
  std::int64_t EndOf(RunList::Place place) const;
  std::size_t SplitRun(Range range, RunList::Place place);
  Stretch SplitRunsAtSelection(Range range);
  bool AnyAreAlike(std::size_t first, std::size_t last);
  void MergeEquivalentRuns(Stretch stretch);
  template <class Change>
  void ChangeRuns(Range range, Change change);
  void ResizeSelectedRuns(std::int32_t newLength);
  void RemoveOtherRuns();

  folivar::Text text_;
  RunList runs_;
  std::int32_t selStart_ = 0;
  std::int32_t selEnd_ = 0;
};

}  // namespace folivar
