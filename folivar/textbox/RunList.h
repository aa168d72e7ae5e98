#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "folivar/textbox/TEXT_FORMAT_RANGE.h"

namespace folivar {

// The runs of a text box in order, at least one. Runs are kept in blocks that know the length of
// their text, so that finding, inserting and removing walks over blocks and the runs of two blocks
// at most.
class RunList {
  struct Spot {
    std::size_t block;
    std::size_t index;  // in the block
  };

 public:
  struct Place {
    std::size_t index;   // of a run, counted from 0
    std::int64_t start;  // of the run's text: the sum of the lengths before it
  };

  explicit RunList(TEXT_FORMAT_RANGE run);

  std::size_t Count() const { return count_; }
  bool IsLast(std::size_t index) const { return index + 1 == count_; }
  const TEXT_FORMAT_RANGE& operator[](std::size_t index) const {
    const Spot spot = SpotOf(index);
    return blocks_[spot.block].runs[spot.index];
  }

  RunFont& FontOf(std::size_t index) {
    const Spot spot = SpotOf(index);
    return blocks_[spot.block].runs[spot.index].Font;
  }

  // The run that holds the character at `position`: on a boundary the run behind it, though an
  // empty run there comes first; the last run for positions beyond all lengths. For 0 it is the
  // first run, also an empty one.
  Place FindStart(std::int64_t position) const;

  // From `from` on, the first run whose text ends at `position` or behind it, else the last.
  Place FindEnd(Place from, std::int64_t position) const;

  // Moves `with` into the place of the runs from `first` up to `last`; nothing changes when memory
  // runs out. At least one run must be left.
  void Replace(std::size_t first, std::size_t last, std::span<TEXT_FORMAT_RANGE> with);
  void Erase(std::size_t first, std::size_t last) { Replace(first, last, {}); }

  void SetLength(std::size_t index, std::int32_t length);

  // Cuts a run into pieces of these lengths, one or more. The first is the run itself, the others
  // are copies with fonts of their own. Nothing changes when memory runs out.
  void Split(std::size_t index, std::span<const std::int32_t> lengths);

  // Visits the runs from `first` up to `last`; the visitor leaves the length alone.
  template <class Visit>
  void ForEach(std::size_t first, std::size_t last, Visit visit) {
    std::size_t index = first;
    for (Spot spot = SpotOf(first); index < last; ++spot.block, spot.index = 0) {
      auto& runs = blocks_[spot.block].runs;
      for (; spot.index < runs.size() && index < last; ++spot.index, ++index) {
        visit(runs[spot.index]);
      }
    }
  }
  template <class Visit>
  void ForEach(Visit visit) const {
    for (const Block& block : blocks_) std::for_each(block.runs.begin(), block.runs.end(), visit);
  }

 private:
  struct Block {
    std::vector<TEXT_FORMAT_RANGE> runs;  // never empty
    std::int64_t length = 0;
  };
  struct BlockPlace {
    std::size_t block = 0;
    std::size_t firstRun = 0;
  };
  static constexpr std::size_t kBlockSize = 64;
  static constexpr std::size_t kSmallBlock = kBlockSize / 4;

  static std::int64_t LengthOf(std::span<const TEXT_FORMAT_RANGE> runs);

  Spot SpotOf(std::size_t index) const;
  void InsertCopies(std::size_t index, std::size_t count);
  void HalveBlock(std::size_t index);
  static void Reserve(Block& block, std::size_t added);
  void ReplaceInBlock(Block& block, std::size_t first, std::size_t last,
                      std::span<TEXT_FORMAT_RANGE> with);
  void RebuildBlocks(std::size_t first, std::size_t last, std::vector<TEXT_FORMAT_RANGE> runs);

  void ForgetFrom(std::size_t index) const {
    if (near_.index > index || near_.index >= count_) near_ = {0, 0};
  }

  std::vector<Block> blocks_;
  std::size_t count_ = 1;
  // What was found and looked at last: text is mostly formatted forwards, so what is wanted next is
  // not far.
  mutable Place near_{0, 0};
  mutable BlockPlace nearBlock_;
};

}  // namespace folivar
