#pragma once

#include <cstdint>

namespace facade {

enum class Action { kCall, kGet, kSet };

// A member of an interface by its dispatch identifier, with what is done with it.
struct Member {
  std::int32_t id;
  Action action;
};

}  // namespace facade
