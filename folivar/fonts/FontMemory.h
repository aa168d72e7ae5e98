#pragma once

#include <cstddef>
#include <list>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>

namespace folivar {

// What the process has read of font files, a little of each. Of what is too much, goes what was not
// asked for the longest. From any thread.
template <class Known>
class FontMemory {
 public:
  using Weigh = std::size_t (*)(const Known& known);

  // What is remembered weighs up to `limit`, or is the last alone.
  FontMemory(std::size_t limit, Weigh weigh) : limit_(limit), weigh_(weigh) {}

  // What is known under this identity, else what `read` reads. Two threads may read the same.
  template <class Read>
  std::shared_ptr<const Known> Recall(const std::string& identity, Read read) {
    if (auto known = Find(identity)) return known;
    auto known = std::make_shared<const Known>(read());
    Keep(identity, known);
    return known;
  }

 private:
  struct Entry {
    std::string identity;
    std::shared_ptr<const Known> known;
  };

  std::shared_ptr<const Known> Find(const std::string& identity) {
    const std::lock_guard lock(mutex_);
    const auto found = places_.find(identity);
    if (found == places_.end()) return nullptr;
    entries_.splice(entries_.begin(), entries_, found->second);
    return found->second->known;
  }

  void Keep(const std::string& identity, const std::shared_ptr<const Known>& known) {
    std::list<Entry> entry;
    entry.push_back({identity, known});
    const std::lock_guard lock(mutex_);
    if (!places_.try_emplace(entry.front().identity, entry.begin()).second) return;
    entries_.splice(entries_.begin(), entry);
    weight_ += weigh_(*known);
    while (weight_ > limit_ && entries_.size() > 1) Forget();
  }

  void Forget() {
    weight_ -= weigh_(*entries_.back().known);
    places_.erase(entries_.back().identity);
    entries_.pop_back();
  }

  const std::size_t limit_;
  const Weigh weigh_;
  std::mutex mutex_;
  std::list<Entry> entries_;  // the one asked for last comes first
  std::map<std::string_view, typename std::list<Entry>::iterator> places_;
  std::size_t weight_ = 0;
};

}  // namespace folivar
