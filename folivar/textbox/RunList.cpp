#include "folivar/textbox/RunList.h"

#include <cassert>
#include <iterator>
#include <utility>

namespace folivar {
namespace {

using Runs = std::vector<TEXT_FORMAT_RANGE>;

Runs::iterator At(Runs& runs, std::size_t index) {
  return runs.begin() + static_cast<std::ptrdiff_t>(index);
}
Runs::const_iterator At(const Runs& runs, std::size_t index) {
  return runs.begin() + static_cast<std::ptrdiff_t>(index);
}

}  // namespace

RunList::RunList(TEXT_FORMAT_RANGE run) {
  blocks_.emplace_back();
  blocks_.front().length = run.Length;
  blocks_.front().runs.push_back(std::move(run));
}

std::int64_t RunList::LengthOf(std::span<const TEXT_FORMAT_RANGE> runs) {
  std::int64_t length = 0;
  for (const TEXT_FORMAT_RANGE& run : runs) length += run.Length;
  return length;
}

RunList::Spot RunList::SpotOf(std::size_t index) const {
  BlockPlace place = index >= nearBlock_.firstRun ? nearBlock_ : BlockPlace{};
  while (place.block + 1 < blocks_.size() &&
         index - place.firstRun >= blocks_[place.block].runs.size()) {
    place.firstRun += blocks_[place.block++].runs.size();
  }
  nearBlock_ = place;
  return {place.block, index - place.firstRun};
}

RunList::Place RunList::FindStart(std::int64_t position) const {
  Place place{0, 0};
  if (position == 0) return place;
  // Where the run found last starts before the position, the runs in front of it end before it too
  // and need no walk.
  if (position > near_.start) place = near_;
  Spot spot = SpotOf(place.index);
  while (!IsLast(place.index)) {
    const Block& block = blocks_[spot.block];
    if (spot.index == 0 && position > place.start + block.length &&
        spot.block + 1 < blocks_.size()) {
      place.index += block.runs.size();
      place.start += block.length;
      ++spot.block;
      continue;
    }
    const std::int32_t length = block.runs[spot.index].Length;
    if (position < place.start + length || (length == 0 && position == place.start)) break;
    ++place.index;
    place.start += length;
    if (++spot.index == block.runs.size()) spot = {spot.block + 1, 0};
  }
  near_ = place;
  return place;
}

RunList::Place RunList::FindEnd(Place from, std::int64_t position) const {
  Place place = from;
  for (Spot spot = SpotOf(from.index); spot.block < blocks_.size(); ++spot.block, spot.index = 0) {
    const Block& block = blocks_[spot.block];
    if (spot.index == 0 && position > place.start + block.length && &block != &blocks_.back()) {
      place.index += block.runs.size();
      place.start += block.length;
      continue;
    }
    for (; spot.index < block.runs.size(); ++spot.index) {
      const std::int32_t length = block.runs[spot.index].Length;
      if (IsLast(place.index) || position <= place.start + length) return place;
      ++place.index;
      place.start += length;
    }
  }
  return place;
}

void RunList::SetLength(std::size_t index, std::int32_t length) {
  const Spot spot = SpotOf(index);
  Block& block = blocks_[spot.block];
  TEXT_FORMAT_RANGE& run = block.runs[spot.index];
  block.length += std::int64_t{length} - run.Length;
  run.Length = length;
  ForgetFrom(index);
}

void RunList::Split(std::size_t index, std::span<const std::int32_t> lengths) {
  if (lengths.size() > 1) InsertCopies(index, lengths.size() - 1);
  const Spot spot = SpotOf(index);
  Block& block = blocks_[spot.block];
  auto run = At(block.runs, spot.index);
  for (const std::int32_t length : lengths) {
    block.length += std::int64_t{length} - run->Length;
    (run++)->Length = length;
  }
  ForgetFrom(index);
}

// Empty copies of a run, behind it and in its block.
void RunList::InsertCopies(std::size_t index, std::size_t count) {
  TEXT_FORMAT_RANGE copy;
  copy.CopyFrom((*this)[index]);
  copy.Length = 0;
  Spot spot = SpotOf(index);
  if (blocks_[spot.block].runs.size() + count > kBlockSize) {
    HalveBlock(spot.block);
    spot = SpotOf(index);
  }
  Block& block = blocks_[spot.block];
  Reserve(block, count);
  block.runs.insert(At(block.runs, spot.index + 1), count, copy);
  count_ += count;
}

void RunList::Replace(std::size_t first, std::size_t last, std::span<TEXT_FORMAT_RANGE> with) {
  assert(count_ - (last - first) + with.size() > 0);
  const Spot begin = SpotOf(first);
  std::size_t endBlock = begin.block;  // the last one touched
  std::size_t size = blocks_[endBlock].runs.size();
  while (begin.index + (last - first) > size) size += blocks_[++endBlock].runs.size();
  const std::size_t count = count_ - (last - first) + with.size();
  // Blocks that have shrunk join their neighbours; many small ones would make every walk slow.
  if (size - (last - first) + with.size() < kSmallBlock && endBlock + 1 < blocks_.size()) {
    size += blocks_[++endBlock].runs.size();
  }
  const std::size_t newSize = size - (last - first) + with.size();
  if (endBlock == begin.block && newSize <= kBlockSize && newSize > 0) {
    ReplaceInBlock(blocks_[endBlock], begin.index, begin.index + (last - first), with);
  } else {
    Runs runs;
    runs.reserve(size + with.size());
    for (std::size_t block = begin.block; block <= endBlock; ++block) {
      runs.insert(runs.end(), blocks_[block].runs.begin(), blocks_[block].runs.end());
    }
    runs.erase(At(runs, begin.index), At(runs, begin.index + (last - first)));
    runs.insert(At(runs, begin.index), std::make_move_iterator(with.begin()),
                std::make_move_iterator(with.end()));
    RebuildBlocks(begin.block, endBlock + 1, std::move(runs));
  }
  count_ = count;
  // The block looked at last is the first one touched here; it may be gone.
  if (nearBlock_.block >= blocks_.size()) nearBlock_ = {};
  ForgetFrom(first);
}

// Puts the first half of a block's runs into a new block before it, with no room left over: text is
// mostly formatted forwards.
void RunList::HalveBlock(std::size_t index) {
  const std::size_t half = blocks_[index].runs.size() / 2;
  Block block;
  block.runs.reserve(half);
  const auto place = blocks_.begin() + static_cast<std::ptrdiff_t>(index);
  Block& lower = *blocks_.insert(place, std::move(block));
  Block& upper = blocks_[index + 1];
  const auto middle = At(upper.runs, half);
  lower.runs.assign(std::make_move_iterator(upper.runs.begin()), std::make_move_iterator(middle));
  upper.runs.erase(upper.runs.begin(), middle);
  lower.length = LengthOf(lower.runs);
  upper.length -= lower.length;
}

// Grows by doubling, though not beyond what a block ever holds.
void RunList::Reserve(Block& block, std::size_t added) {
  const std::size_t size = block.runs.size() + added;
  if (size > block.runs.capacity()) block.runs.reserve(std::min(kBlockSize, 2 * size));
}

void RunList::ReplaceInBlock(Block& block, std::size_t first, std::size_t last,
                             std::span<TEXT_FORMAT_RANGE> with) {
  const std::size_t removed = last - first;
  Reserve(block, with.size() > removed ? with.size() - removed : 0);
  const std::int64_t added = LengthOf(with);
  for (std::size_t index = first; index < last; ++index) block.length -= block.runs[index].Length;
  block.length += added;
  const std::size_t kept = std::min(removed, with.size());
  const auto rest = with.subspan(kept);
  std::move(with.begin(), rest.begin(), At(block.runs, first));
  block.runs.erase(At(block.runs, first + kept), At(block.runs, last));
  block.runs.insert(At(block.runs, first + kept), std::make_move_iterator(rest.begin()),
                    std::make_move_iterator(rest.end()));
}

// Puts `runs` in the place of the blocks from `first` up to `last`.
void RunList::RebuildBlocks(std::size_t first, std::size_t last, Runs runs) {
  std::vector<Block> rebuilt;
  for (std::size_t start = 0; start < runs.size(); start += kBlockSize / 2) {
    const std::size_t end = std::min(start + kBlockSize / 2, runs.size());
    Block& block = rebuilt.emplace_back();
    block.runs.assign(At(std::as_const(runs), start), At(std::as_const(runs), end));
    block.length = LengthOf(block.runs);
  }
  blocks_.reserve(blocks_.size() + rebuilt.size());
  const auto place = blocks_.erase(blocks_.begin() + static_cast<std::ptrdiff_t>(first),
                                   blocks_.begin() + static_cast<std::ptrdiff_t>(last));
  blocks_.insert(place, std::make_move_iterator(rebuilt.begin()),
                 std::make_move_iterator(rebuilt.end()));
}

}  // namespace folivar
