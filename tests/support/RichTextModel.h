#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "folivar/textbox/PDFParaAlignment.h"

namespace folivar::test {

// The rules of editing rich text as the plainest program that keeps them: a string and a vector of
// runs, walked from the front at every step. Its fonts are objects, because runs may share them.
// Where the text and the runs are out of step, the last run takes what is left of the text.
class RichTextModel {
 public:
  struct Font {
    float size = 10;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;
    bool subscript = false;
    bool superscript = false;

    friend bool operator==(const Font&, const Font&) = default;
  };
  struct Run {
    std::shared_ptr<Font> font;
    std::int32_t color = 0;
    PDFParaAlignment alignment = alignLeft;
    std::int64_t length = 0;
  };

  RichTextModel();

  const std::u16string& Text() const { return text_; }
  std::int64_t SelStart() const { return start_; }
  std::int64_t SelLength() const { return end_ - start_; }
  std::u16string SelText() const;
  const std::vector<Run>& Runs() const { return runs_; }
  // The one run that holds the selection; none for several.
  std::optional<Run> Selected() const;

  // Both answer with the number of the error that is due, 0 for none.
  int SetText(const std::u16string& text);
  int SetSelText(const std::u16string& text);
  void SetSelStart(std::int64_t start);
  void SetSelLength(std::int64_t length);

  template <class Change>
  void ChangeSelection(Change change) {
    ChangeRuns(start_, end_, change);
  }
  void SetSelAlignment(PDFParaAlignment alignment);
  // As a change of format does that fails at once.
  void SplitSelection() { SplitAt(start_, end_); }
  void CopyFrom(const RichTextModel& source);

 private:
  struct Place {
    std::size_t index;
    std::int64_t start;
  };
  struct Stretch {
    std::size_t first;
    std::size_t last;
  };

  std::int64_t Length() const { return static_cast<std::int64_t>(text_.size()); }
  void Find(std::int64_t start, std::int64_t end, Place& first, Place& last) const;
  std::int64_t EndOf(Place place) const;
  std::size_t Split(std::int64_t from, std::int64_t to, Place place);
  Stretch SplitAt(std::int64_t start, std::int64_t end);
  void Merge(Stretch stretch);

  template <class Change>
  void ChangeRuns(std::int64_t start, std::int64_t end, Change change) {
    const Stretch stretch = SplitAt(start, end);
    for (std::size_t index = stretch.first; index <= stretch.last; ++index) change(runs_[index]);
    Merge(stretch);
  }

  std::u16string text_;
  std::vector<Run> runs_;
  std::int64_t start_ = 0;
  std::int64_t end_ = 0;
};

}  // namespace folivar::test
