#pragma once

#include <array>
#include <string_view>

struct PageSize {
  std::string_view name;
  float width;  // points
  float height;
  float textScale;  // of type and spacing: small pages have smaller type
};

inline constexpr std::array<PageSize, 4> kPageSizes = {{
    {"a4", 595.276F, 841.89F, 1.0F},
    {"letter", 612.0F, 792.0F, 1.0F},
    {"a5", 419.528F, 595.276F, 0.8F},
    {"legal", 612.0F, 1008.0F, 1.0F},
}};
