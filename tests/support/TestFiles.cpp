#include "tests/support/TestFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace folivar::test {
namespace {

// "FormatReal.Halves", or "Faces.Widths.Symbol" for a test with parameters, whose names hold "/".
std::string NameOfRunningTest() {
  const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
  if (test == nullptr) throw std::runtime_error("OutputPath is for running tests only");
  std::string name = std::string(test->test_suite_name()) + "." + test->name();
  std::replace(name.begin(), name.end(), '/', '.');
  return name;
}

}  // namespace

std::filesystem::path OutputPath(std::string_view name) {
  const std::filesystem::path folder =
      std::filesystem::path(FOLIVAR_TEST_OUTPUT) / NameOfRunningTest();
  std::filesystem::create_directories(folder);
  std::filesystem::path path = folder / name;
  std::filesystem::remove_all(path);
  return path;
}

std::filesystem::path DataPath(std::string_view name) {
  return std::filesystem::path(FOLIVAR_TEST_DATA) / name;
}

std::string ReadBytes(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot open " + path.string());
  std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  if (file.bad()) throw std::runtime_error("cannot read " + path.string());
  return bytes;
}

void WriteBytes(const std::filesystem::path& path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) throw std::runtime_error("cannot write " + path.string());
}

}  // namespace folivar::test
