#include "tests/support/Golden.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "tests/support/TestFiles.h"

namespace folivar::test {
namespace {

bool IsRegenerating() {
  const char* wish = std::getenv("FOLIVAR_REGENERATE_GOLDEN");
  return wish != nullptr && std::string_view(wish) == "1";
}

// The line around `position`, bytes beyond ASCII as \xNN.
std::string LineAt(std::string_view bytes, std::size_t position) {
  if (position >= bytes.size()) return "(the end)";
  const std::size_t before = position == 0 ? bytes.npos : bytes.rfind('\n', position - 1);
  const std::size_t start = before == bytes.npos ? 0 : before + 1;
  const std::size_t end = std::min(bytes.find('\n', position), bytes.size());
  std::string line;
  for (const char byte : bytes.substr(start, end - start)) {
    if (byte >= ' ' && byte <= '~') {
      line += byte;
    } else {
      constexpr std::string_view kDigits = "0123456789ABCDEF";
      const auto value = static_cast<unsigned char>(byte);
      line += {'\\', 'x', kDigits[value / 16], kDigits[value % 16]};
    }
  }
  return line;
}

}  // namespace

void ExpectGolden(std::string_view name, std::string_view bytes) {
  const std::filesystem::path path = DataPath("golden") / name;
  if (IsRegenerating()) {
    std::filesystem::create_directories(path.parent_path());
    WriteBytes(path, bytes);
    ADD_FAILURE() << "regenerated " << path << "; look at the difference, then run the test again";
    return;
  }
  if (!std::filesystem::exists(path)) {
    ADD_FAILURE() << path << " is missing; FOLIVAR_REGENERATE_GOLDEN=1 writes it";
    return;
  }
  const std::string expected = ReadBytes(path);
  if (expected == bytes) return;
  const auto difference = static_cast<std::size_t>(
      std::mismatch(expected.begin(), expected.end(), bytes.begin(), bytes.end()).first -
      expected.begin());
  const std::filesystem::path kept = OutputPath(std::filesystem::path(name).filename().string());
  WriteBytes(kept, bytes);
  ADD_FAILURE() << "differs from " << path << " at byte " << difference << ", line "
                << std::count(expected.begin(),
                              expected.begin() + static_cast<std::ptrdiff_t>(difference), '\n') +
                       1
                << "\n  expected: " << LineAt(expected, difference)
                << "\n  found:    " << LineAt(bytes, difference) << "\n  all of it: " << kept;
}

}  // namespace folivar::test
