#include "hosts/c/EnvironmentWarnings.h"

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

namespace folivar::hosts {
namespace {

// Empty when it is not set.
std::string_view Variable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string_view() : value;
}

bool Append(std::string_view path, const Text& message) {
  if (path.empty()) return false;
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.data(), "ab"),
                                                             &std::fclose);
  if (!file) return false;
  const std::string line = message.Utf8() + '\n';
  return std::fwrite(line.data(), 1, line.size(), file.get()) == line.size();
}

}  // namespace

void EnvironmentWarnings::Show(const Text& message) {
  const std::string_view way = Variable("FOLIVAR_WARNINGS");
  if (way == "off") return;
  if (way == "log" && Append(Variable("FOLIVAR_WARNINGS_FILE"), message)) return;
  ToStandardError()->Show(message);
}

}  // namespace folivar::hosts
