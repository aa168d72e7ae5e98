#include "tests/support/Random.h"

#include <cstdlib>

namespace folivar::test {
namespace {

std::uint64_t SeedOfThisRun() {
  const char* wish = std::getenv("FOLIVAR_TEST_SEED");
  return wish == nullptr ? 1 : std::strtoull(wish, nullptr, 10);
}

}  // namespace

Random::Random() : seed_(SeedOfThisRun()), generator_(seed_) {}

std::string Random::Trace() const { return "FOLIVAR_TEST_SEED=" + std::to_string(seed_); }

}  // namespace folivar::test
