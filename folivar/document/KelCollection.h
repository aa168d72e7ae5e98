#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "folivar/base/CaseFold.h"
#include "folivar/base/Error.h"
#include "folivar/base/InMember.h"
#include "folivar/base/Text.h"
#include "folivar/base/Value.h"

namespace folivar {

// The ordered keyed list beneath every collection: entries at positions from 1, each with an
// optional key that no other entry has. Keys compare without regard to case. A text always names a
// key ("1" too), a number a position; this is the one place that tells them apart.
//
// Adding at the end takes constant time, and so does finding by key, which walks over one block of
// entries at most. Blocks are of up to 512 entries, so that finding, inserting and removing
// elsewhere walks over blocks, not over entries, and moves the entries of one block at most.
template <class T>
class KelCollection {
 public:
  // The class that errors name, for example "PDFPages"; a literal.
  explicit KelCollection(const char* className) : className_(className) {}
  KelCollection(const KelCollection&) = delete;
  KelCollection& operator=(const KelCollection&) = delete;

  std::size_t Count() const { return count_; }

  // Adds at the place that `before` or `after` names, or at the end when both are missing. An empty
  // key is no key. Raises, in this order: 5 when both places are given, 457 for a key in use, 5 or
  // 9 for a place that names no entry.
  void Add(T item, TextView key = {}, const Value& before = {}, const Value& after = {}) {
    InMember(className_, "Add", [&] {
      if (!before.IsMissing() && !after.IsMissing()) {
        throw Error::InvalidArgument("Before and After cannot both be given");
      }
      std::u16string folded = key.IsEmpty() ? std::u16string() : FoldCase(key);
      if (!folded.empty() && byKey_.contains(folded)) {
        throw Error::KeyInUse("key '" + Text(key).Utf8() + "' is already in use");
      }
      std::size_t position = count_;
      if (!before.IsMissing()) position = PlaceOf(Find(before)).position;
      if (!after.IsMissing()) position = PlaceOf(Find(after)).position + 1;
      Insert(position, std::move(item), std::move(folded));
    });
  }

  // Raises 5 for an unknown key and 9 for a position outside 1 to Count(); 13 for what is neither a
  // text nor a number, 94 for Null, 6 for a number beyond 32 bits.
  const T& Item(const Value& index) const {
    return InMember(className_, "Item", [&]() -> const T& { return Find(index).item; });
  }

  // Takes the entry out and returns its item. Raises as Item.
  T Remove(const Value& index) {
    return Erase(InMember(className_, "Remove", [&]() -> Entry& { return Find(index); }));
  }

  // Takes out the entry with this item, if there is one; it is looked for at `likely` first.
  void RemoveItem(const T& item, const Value& likely) {
    if (KeyExists(likely)) {
      Entry& entry = Find(likely);
      if (entry.item == item) {
        Erase(entry);
        return;
      }
    }
    for (const auto& block : blocks_) {
      for (Entry& entry : block->entries) {
        if (entry.item == item) {
          Erase(entry);
          return;
        }
      }
    }
  }

  // Whether Item would succeed. Never raises.
  bool KeyExists(const Value& index) const noexcept {
    try {
      if (const auto* key = index.template As<Text>()) return byKey_.contains(FoldCase(*key));
      return Holds(PositionFrom(index));
    } catch (...) {
      return false;
    }
  }

  // In order; the list must not change meanwhile.
  template <class Visit>
  void ForEach(Visit visit) const {
    for (const auto& block : blocks_) {
      for (const Entry& entry : block->entries) visit(entry.item);
    }
  }

 private:
  struct Block;
  using Keys = std::unordered_map<std::u16string, Block*>;
  struct Entry {
    T item;
    typename Keys::value_type* key;  // in byKey_; null without a key
  };
  struct Block {
    std::vector<Entry> entries;
  };
  struct Place {
    std::size_t block;
    std::size_t index;     // in the block
    std::size_t position;  // in the list, counted from 0
  };
  static constexpr std::size_t kSmallestBlock = 4;
  static constexpr std::size_t kBlockSize = 512;

  Entry& Find(const Value& index) const {
    if (const auto* key = index.template As<Text>()) {
      const auto found = byKey_.find(FoldCase(*key));
      if (found == byKey_.end()) {
        throw Error::InvalidArgument("there is no key '" + key->Utf8() + "'");
      }
      auto& entries = found->second->entries;
      return *std::find_if(entries.begin(), entries.end(),
                           [&](const Entry& entry) { return entry.key == &*found; });
    }
    return At(PositionFrom(index));
  }

  std::int32_t PositionFrom(const Value& index) const {
    return OfObject([] { return "position or key"; }, [&] { return Int32From(index); });
  }

  bool Holds(std::int32_t position) const {
    return position >= 1 && static_cast<std::size_t>(position) <= count_;
  }

  Entry& At(std::int32_t position) const {
    if (Holds(position)) {
      auto rest = static_cast<std::size_t>(position) - 1;
      for (const auto& block : blocks_) {
        if (rest < block->entries.size()) return block->entries[rest];
        rest -= block->entries.size();
      }
    }
    throw Error::SubscriptOutOfRange("position " + std::to_string(position) + " is outside 1 to " +
                                     std::to_string(count_));
  }

  Place PlaceOf(const Entry& entry) const {
    Place place{};
    const auto isInside = [&](const std::vector<Entry>& entries) {
      return !std::less<>()(&entry, entries.data()) &&
             std::less<>()(&entry, entries.data() + entries.size());
    };
    while (!isInside(blocks_[place.block]->entries)) {
      place.position += blocks_[place.block++]->entries.size();
    }
    place.index = static_cast<std::size_t>(&entry - blocks_[place.block]->entries.data());
    place.position += place.index;
    return place;
  }

  T Erase(Entry& entry) {
    const Place place = PlaceOf(entry);
    if (entry.key != nullptr) byKey_.erase(entry.key->first);
    T item = std::move(entry.item);
    auto& entries = blocks_[place.block]->entries;
    entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(place.index));
    if (entries.empty()) blocks_.erase(blocks_.begin() + static_cast<std::ptrdiff_t>(place.block));
    --count_;
    return item;
  }

  // Inserts, or changes nothing when memory runs out. `position` counts from 0.
  void Insert(std::size_t position, T&& item, std::u16string&& foldedKey) {
    const Place place = MakeRoom(position);
    Block& block = *blocks_[place.block];
    auto& entries = block.entries;
    if (entries.size() == entries.capacity()) {
      entries.reserve(std::clamp(2 * entries.size(), kSmallestBlock, kBlockSize));
    }
    Entry entry{std::move(item), nullptr};
    if (!foldedKey.empty()) entry.key = &*byKey_.emplace(std::move(foldedKey), &block).first;
    entries.insert(entries.begin() + static_cast<std::ptrdiff_t>(place.index), std::move(entry));
    ++count_;
  }

  // The place at `position` in a block that is not full.
  Place MakeRoom(std::size_t position) {
    Place place{0, position, position};
    if (position == count_ && !blocks_.empty()) {
      place.block = blocks_.size() - 1;
      place.index = blocks_.back()->entries.size();
      if (place.index < kBlockSize) return place;
    }
    for (; place.block < blocks_.size(); ++place.block) {
      const std::size_t size = blocks_[place.block]->entries.size();
      if (place.index < size || (place.index == size && size < kBlockSize)) break;
      place.index -= size;
    }
    if (place.block == blocks_.size()) {
      blocks_.push_back(std::make_unique<Block>());
    } else if (blocks_[place.block]->entries.size() == kBlockSize) {
      Split(place.block);
      if (place.index > kBlockSize / 2) {
        place.index -= kBlockSize / 2;
        ++place.block;
      }
    }
    return place;
  }

  void Split(std::size_t number) {
    auto upper = std::make_unique<Block>();
    upper->entries.reserve(kBlockSize);
    blocks_.reserve(blocks_.size() + 1);
    auto& lower = blocks_[number]->entries;
    const auto middle = lower.begin() + static_cast<std::ptrdiff_t>(kBlockSize / 2);
    for (auto entry = middle; entry != lower.end(); ++entry) {
      if (entry->key != nullptr) entry->key->second = upper.get();
      upper->entries.push_back(std::move(*entry));
    }
    lower.erase(middle, lower.end());
    blocks_.insert(blocks_.begin() + static_cast<std::ptrdiff_t>(number) + 1, std::move(upper));
  }

  const char* className_;
  std::size_t count_ = 0;
  std::vector<std::unique_ptr<Block>> blocks_;
  Keys byKey_;  // with the block that the entry is in
};

}  // namespace folivar
