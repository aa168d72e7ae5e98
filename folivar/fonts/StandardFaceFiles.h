#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace folivar {

// A metrics file built into the library. The text is in pieces, since some compilers take no long
// ones; put together they are the file, byte for byte.
struct StandardFaceFile {
  std::string_view name;  // the face's
  const std::string_view* pieces;
  std::size_t pieceCount;
};

inline constexpr std::size_t kStandardFaceCount = 14;

// The files of fonts/afm, sorted by name; there for the whole run. The build makes the source of
// this function, except for the automation component, which has the files as resources.
std::span<const StandardFaceFile, kStandardFaceCount> StandardFaceFiles();

}  // namespace folivar
