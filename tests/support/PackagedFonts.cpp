#include "tests/support/PackagedFonts.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <stdexcept>
#include <string>

namespace folivar::test {
namespace {

const std::filesystem::path kFolder = "/usr/share/fonts/truetype";

struct FontFolder {
  const char* name;
  std::size_t leastFiles;
};
constexpr auto kFolders = std::to_array<FontFolder>({
    {"dejavu", 22},
    {"freefont", 12},
    {"liberation", 12},
    {"libreoffice", 1},
});

}  // namespace

std::filesystem::path PackagedFont(std::string_view name) {
  std::filesystem::path path = kFolder / name;
  if (!std::filesystem::exists(path)) {
    throw std::runtime_error("the font " + path.string() + " is not installed");
  }
  return path;
}

std::vector<std::filesystem::path> PackagedFonts() {
  std::vector<std::filesystem::path> fonts;
  for (const FontFolder& folder : kFolders) {
    const std::filesystem::path path = kFolder / folder.name;
    const std::size_t before = fonts.size();
    for (const auto& entry : std::filesystem::directory_iterator(path)) {
      if (entry.path().extension() == ".ttf") fonts.push_back(entry.path());
    }
    if (fonts.size() - before < folder.leastFiles) {
      throw std::runtime_error("fonts are missing in " + path.string());
    }
  }
  std::sort(fonts.begin(), fonts.end());
  return fonts;
}

}  // namespace folivar::test
