#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>

namespace folivar::test {

// Numbers for random tests: the same in every run, or others with the environment variable
// FOLIVAR_TEST_SEED set. A test says SCOPED_TRACE(random.Trace()), so that a failure shows the
// seed.
class Random {
 public:
  Random();

  // "FOLIVAR_TEST_SEED=1"
  std::string Trace() const;

  std::uint64_t Bits() { return generator_(); }
  // 0 to limit - 1.
  std::size_t Below(std::size_t limit) { return static_cast<std::size_t>(Bits() % limit); }
  bool Chance(std::size_t percent) { return Below(100) < percent; }

 private:
  std::uint64_t seed_;
  std::mt19937_64 generator_;
};

}  // namespace folivar::test
