#include "folivar/fonts/StandardFaces.h"

#include <array>
#include <mutex>
#include <string>

#include "folivar/document/CaseFold.h"

namespace folivar {
namespace {

struct Cached {
  std::once_flag isRead;
  AfmMetrics metrics;
};

AfmMetrics ReadFace(const StandardFaceFile& file) {
  std::string text;
  for (std::size_t i = 0; i < file.pieceCount; ++i) text += file.pieces[i];
  return ReadAfm(text);
}

}  // namespace

std::string_view StandardFaceName(std::size_t face) { return kStandardFaceFiles[face].name; }

std::optional<std::size_t> FindStandardFace(TextView name) {
  const std::u16string wanted = FoldCase(name);
  for (std::size_t face = 0; face < kStandardFaceCount; ++face) {
    if (FoldCase(StandardFaceName(face)) == wanted) return face;
  }
  return std::nullopt;
}

const AfmMetrics& StandardFaceMetrics(std::size_t face) {
  static std::array<Cached, kStandardFaceCount> cache;
  Cached& cached = cache[face];
  std::call_once(cached.isRead, [&] { cached.metrics = ReadFace(kStandardFaceFiles[face]); });
  return cached.metrics;
}

}  // namespace folivar
