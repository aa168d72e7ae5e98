#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

namespace folivar::test {

// A font file of one of the packages that the tests need, by its path below the system's folder of
// TrueType fonts: "liberation/LiberationSans-Regular.ttf". Throws std::runtime_error, naming it,
// when it is not there.
std::filesystem::path PackagedFont(std::string_view name);

// Every TrueType file of these packages: Liberation, DejaVu, FreeFont and OpenSymbol. Throws
// std::runtime_error, naming the folder, when some are not there.
std::vector<std::filesystem::path> PackagedFonts();

}  // namespace folivar::test
