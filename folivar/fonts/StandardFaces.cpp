#include "folivar/fonts/StandardFaces.h"

#include <algorithm>
#include <array>
#include <mutex>
#include <string>

#include "folivar/base/CaseFold.h"

namespace folivar {
namespace {

struct Cached {
  std::once_flag isRead;
  AfmMetrics metrics;
};

// Whether `folded` is this name, which is ASCII, with its case folded.
bool IsFolded(std::u16string_view folded, std::string_view name) {
  return std::equal(
      folded.begin(), folded.end(), name.begin(), name.end(),
      [](char16_t unit, char letter) { return unit == FoldCase(static_cast<char16_t>(letter)); });
}

AfmMetrics ReadFace(const StandardFaceFile& file) {
  std::string text;
  for (std::size_t i = 0; i < file.pieceCount; ++i) text += file.pieces[i];
  return ReadAfm(text);
}

}  // namespace

std::string_view StandardFaceName(std::size_t face) { return StandardFaceFiles()[face].name; }

std::optional<std::size_t> FindStandardFace(TextView name) {
  const std::u16string wanted = FoldCase(name);
  for (std::size_t face = 0; face < kStandardFaceCount; ++face) {
    if (IsFolded(wanted, StandardFaceName(face))) return face;
  }
  return std::nullopt;
}

const AfmMetrics& StandardFaceMetrics(std::size_t face) {
  static std::array<Cached, kStandardFaceCount> cache;
  Cached& cached = cache[face];
  std::call_once(cached.isRead, [&] { cached.metrics = ReadFace(StandardFaceFiles()[face]); });
  return cached.metrics;
}

}  // namespace folivar
