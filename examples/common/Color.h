#pragma once

#include <cstdint>

// As the library takes colours: red in the low byte.
constexpr std::int32_t Rgb(std::int32_t red, std::int32_t green, std::int32_t blue) {
  return red | green << 8 | blue << 16;
}
