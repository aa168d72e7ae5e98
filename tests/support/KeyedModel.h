#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "folivar/base/Value.h"
#include "tests/support/Random.h"

namespace folivar::test {

// A position, a key or something that is neither, as a host passes it.
struct Argument {
  enum class Kind { kMissing, kWhole, kReal, kText, kFlag, kNull, kEmpty };

  Kind kind = Kind::kMissing;
  double number = 0;
  std::string text;

  Value AsValue() const;
};

// The rules of keyed collections as the plainest program that keeps them: a vector of pairs,
// searched from the front. Operations answer with the number of the error that is due, 0 for none,
// and change nothing then.
class KeyedModel {
 public:
  struct Entry {
    int item;
    std::string key;  // in small letters; empty for none
  };

  const std::vector<Entry>& Entries() const { return entries_; }

  int Add(int item, const std::string& key, const Argument& before, const Argument& after);
  int Remove(const Argument& index);
  void ReOrder(const std::string& key, const Argument& before, const Argument& after);

  // The item, by way of `item`.
  int Item(const Argument& index, int& item) const;

  // What to try next: mostly places that there are, at times those that there are not.
  Argument RandomIndex(Random& random) const;
  // Nothing, one place or two.
  void RandomPlaces(Random& random, Argument& before, Argument& after) const;
  // One of a few thousand keys in letters of either case, often one in use, at times none.
  std::string RandomKey(Random& random) const;

 private:
  int Find(const Argument& index, std::size_t& place) const;

  std::vector<Entry> entries_;
};

}  // namespace folivar::test
