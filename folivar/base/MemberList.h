#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

#include "folivar/base/Members.h"
#include "folivar/base/Text.h"
#include "folivar/base/Value.h"

namespace folivar {

// What the collections of the object model have in common: members in order, found by position from
// 1 or by key, and walked by a range-for. A collection makes its members itself (its Add) and shows
// Remove and ReOrder where it has them.
template <class T>
class MemberList {
 public:
  // The walk of one range-for: over the members as they were when it began, so that the loop may
  // add and remove.
  class Iterator {
   public:
    using iterator_category = std::input_iterator_tag;
    using value_type = std::shared_ptr<T>;
    using difference_type = std::ptrdiff_t;
    using pointer = const value_type*;
    using reference = const value_type&;

    explicit Iterator(std::vector<std::shared_ptr<T>> members)
        : members_(std::make_shared<const std::vector<std::shared_ptr<T>>>(std::move(members))) {}

    reference operator*() const { return (*members_)[next_]; }
    pointer operator->() const { return &(*members_)[next_]; }
    Iterator& operator++() {
      ++next_;
      return *this;
    }
    void operator++(int) { ++next_; }
    friend bool operator==(const Iterator& walk, std::default_sentinel_t) {
      return walk.next_ == walk.members_->size();
    }

   private:
    std::shared_ptr<const std::vector<std::shared_ptr<T>>> members_;
    std::size_t next_ = 0;
  };

  MemberList(const MemberList&) = delete;
  MemberList& operator=(const MemberList&) = delete;

  // The member at a position (a number, 1 to count(), halves rounded to even) or with a key (a
  // text, compared without regard to case). Raises 5 for an unknown key, 9 for a position outside
  // the collection, 13 for what is neither, 94 for Null, 6 for a number beyond 32 bits.
  std::shared_ptr<T> Item(const Value& indexOrKey) const {
    return std::static_pointer_cast<T>(members_.Item(indexOrKey));
  }

  std::int32_t count() const { return static_cast<std::int32_t>(members_.Count()); }

  // Whether Item would succeed. Never raises.
  template <class IndexOrKey>
  bool KeyExists(const IndexOrKey& indexOrKey) const noexcept {
    try {
      const Value& value = indexOrKey;
      return members_.KeyExists(value);
    } catch (...) {
      return false;
    }
  }

  Iterator begin() const {
    std::vector<std::shared_ptr<T>> members;
    members.reserve(members_.Count());
    members_.ForEach([&](Object& member) {
      members.push_back(std::static_pointer_cast<T>(member.shared_from_this()));
    });
    return Iterator(std::move(members));
  }
  std::default_sentinel_t end() const { return {}; }

 protected:
  MemberList(const Internal& internal, const char* name) : members_(internal, name) {}
  ~MemberList() = default;

  // visit(T&) for each in order; the members must not change meanwhile.
  template <class Visit>
  void ForEach(Visit visit) const {
    members_.ForEach([&](Object& member) { visit(static_cast<T&>(member)); });
  }

  // Takes the member with this key out through `remove`, the collection's own Remove, and puts it
  // back at the place named. Never raises: an unknown key changes nothing.
  // Deliberate: when both places are given, `after` is ignored, unlike in Add; and a member whose
  // new place does not exist stays removed.
  template <class Before, class After, class Remove>
  void MoveMember(TextView key, const Before& before, const After& after, Remove remove) noexcept {
    try {
      // What `remove` calls may let go of, or change, what is given.
      const Text kept(key);
      const Value beforePlace = before;  // NOLINT(performance-unnecessary-copy-initialization)
      const Value afterPlace = beforePlace.IsMissing() ? Value(after) : Value();
      Members::Member member = members_.Item(kept);
      remove(Value(kept));
      members_.Add(std::move(member), kept, beforePlace, afterPlace);
    } catch (...) {
      return;
    }
  }

  Members members_;
};

}  // namespace folivar
