#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace folivar::test {

// A place for a file of the running test, in a folder of its own, so that tests that run side by
// side do not meet. The folder exists; what an earlier run left under this name is gone.
std::filesystem::path OutputPath(std::string_view name);

// A file of the test tree, by its path below tests/.
std::filesystem::path DataPath(std::string_view name);

// Both throw std::runtime_error, naming the file, when it cannot be read or written.
std::string ReadBytes(const std::filesystem::path& path);
void WriteBytes(const std::filesystem::path& path, std::string_view bytes);

}  // namespace folivar::test
