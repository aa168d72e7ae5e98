#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace folivar {

// A metrics file built into the library: the build makes these from fonts/afm. The text is in
// pieces, since some compilers take no long ones; put together they are the file, byte for byte.
struct StandardFaceFile {
  std::string_view name;  // the face's
  const std::string_view* pieces;
  std::size_t pieceCount;
};

inline constexpr std::size_t kStandardFaceCount = 14;

// Sorted by name.
extern const StandardFaceFile kStandardFaceFiles[kStandardFaceCount];

}  // namespace folivar
