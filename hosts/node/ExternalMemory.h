#pragma once

#include <cstddef>
#include <cstdint>

#include "hosts/node/NodeApi.h"

namespace folivar::node {

// Tells the garbage collector what a document weighs in the library. Knowing only the few bytes of
// the wrappers, it would let documents pile up that nobody needs any more.
//
// What JavaScript hands in is counted, not what the library makes of it; that is near enough.
class ExternalMemory {
 public:
  // With what an empty document takes.
  explicit ExternalMemory(napi_env env) : env_(env) { Tell(kEmptyDocument); }
  ~ExternalMemory() { Tell(-told_); }
  ExternalMemory(const ExternalMemory&) = delete;
  ExternalMemory& operator=(const ExternalMemory&) = delete;

  // Tells of it sooner or later.
  void Add(std::size_t bytes) {
    untold_ += static_cast<std::int64_t>(bytes);
    if (untold_ >= kStep) Tell(untold_);
  }

 private:
  static constexpr std::int64_t kEmptyDocument = 16384;
  static constexpr std::int64_t kStep = 65536;

  void Tell(std::int64_t change) {
    std::int64_t all = 0;
    napi_adjust_external_memory(env_, change, &all);
    told_ += change;
    untold_ = 0;
  }

  napi_env env_;
  std::int64_t told_ = 0;
  std::int64_t untold_ = 0;
};

}  // namespace folivar::node
