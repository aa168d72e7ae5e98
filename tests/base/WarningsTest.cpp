#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "folivar/base/Error.h"
#include "folivar/base/Warnings.h"
#include "folivar/folivar.h"
#include "tests/support/Content.h"
#include "tests/support/TestFiles.h"

namespace folivar::test {
namespace {

// Sends standard error to a file as long as it lives.
class StandardErrorToFile {
 public:
  explicit StandardErrorToFile(const std::filesystem::path& path) : saved_(dup(STDERR_FILENO)) {
    std::fflush(stderr);
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    dup2(file, STDERR_FILENO);
    close(file);
  }
  ~StandardErrorToFile() {
    std::fflush(stderr);
    dup2(saved_, STDERR_FILENO);
    close(saved_);
  }
  StandardErrorToFile(const StandardErrorToFile&) = delete;
  StandardErrorToFile& operator=(const StandardErrorToFile&) = delete;

 private:
  int saved_;
};

TEST(Warnings, Raises91ForAFunctionThatIsNone) {
  EXPECT_EQ(ErrorNumberOf([] { Warnings::To({}); }), Error::kObjectNotSet);
}

TEST(Warnings, GoToTheHostsFunction) {
  std::vector<std::string> shown;
  const auto warnings = Warnings::To([&](const Text& message) { shown.push_back(message.Utf8()); });
  warnings->Show(Text("one"));
  warnings->Show(Text("caf\u00E9"));
  EXPECT_EQ(shown, (std::vector<std::string>{"one", "caf\u00E9"}));
}

TEST(Warnings, WhatTheHostsFunctionThrowsReachesTheCaller) {
  const auto warnings = Warnings::To([](const Text&) { throw std::logic_error("host"); });
  EXPECT_THROW(warnings->Show(Text("one")), std::logic_error);
}

TEST(Warnings, GoToStandardErrorALineEach) {
  const auto path = OutputPath("stderr.txt");
  {
    const StandardErrorToFile redirected(path);
    Warnings::ToStandardError()->Show(Text("one"));
    Warnings::ToStandardError()->Show(Text("caf\u00E9"));
  }
  EXPECT_EQ(ReadBytes(path), "one\ncaf\u00E9\n");
}

TEST(Warnings, OfADocumentGoToStandardErrorUnlessTheHostSaysOtherwise) {
  const auto path = OutputPath("stderr.txt");
  {
    const StandardErrorToFile redirected(path);
    PDFDocument::Create()->Fonts()->Add("Nonesuch");
  }
  EXPECT_EQ(ReadBytes(path),
            "WARNING: Font 'Nonesuch' could not be found.  Using 'Helvetica' instead.\n");
}

}  // namespace
}  // namespace folivar::test
