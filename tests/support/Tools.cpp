#include "tests/support/Tools.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <system_error>

#include "tests/support/TestFiles.h"

extern char** environ;

namespace folivar::test {
namespace {

std::string Joined(const std::vector<std::string>& command) {
  std::string line;
  for (const std::string& word : command) line += (line.empty() ? "" : " ") + word;
  return line;
}

// A file without a name that takes what a program prints.
class Capture {
 public:
  Capture() : file_(std::tmpfile()) {
    if (!file_) throw std::system_error(errno, std::generic_category(), "temporary file");
  }
  int Descriptor() const { return fileno(file_.get()); }
  std::string Text() {
    std::string text;
    std::rewind(file_.get());
    char buffer[4096];
    while (const std::size_t size = std::fread(buffer, 1, sizeof buffer, file_.get())) {
      text.append(buffer, size);
    }
    return text;
  }

 private:
  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };
  std::unique_ptr<std::FILE, Closer> file_;
};

void ExpectSilentSuccess(const std::vector<std::string>& command) {
  const ToolResult result = Run(command);
  EXPECT_EQ(result.status, 0) << Joined(command);
  EXPECT_EQ(result.out + result.err, "") << Joined(command);
}

void ExpectPassesQpdf(const std::filesystem::path& pdf) {
  const ToolResult result = Run({"qpdf", "--check", pdf});
  EXPECT_EQ(result.status, 0) << "qpdf --check " << pdf << "\n" << result.out;
  EXPECT_EQ(result.err, "") << "qpdf --check " << pdf;
  EXPECT_EQ(result.out.find("WARNING"), std::string::npos) << result.out;
  EXPECT_NE(result.out.find("No syntax or stream encoding errors found"), std::string::npos)
      << result.out;
}

std::string PageCount(const std::filesystem::path& pdf) {
  return Run({"qpdf", "--show-npages", pdf}).out;
}

}  // namespace

ToolResult Run(const std::vector<std::string>& command) {
  std::vector<char*> arguments;
  for (const std::string& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);

  Capture out;
  Capture err;
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_adddup2(&actions, out.Descriptor(), STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&actions, err.Descriptor(), STDERR_FILENO);
  pid_t child = 0;
  const int failure =
      posix_spawnp(&child, arguments[0], &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (failure != 0) {
    throw std::runtime_error("cannot run '" + Joined(command) +
                             "': " + std::generic_category().message(failure));
  }

  int state = 0;
  while (waitpid(child, &state, 0) < 0) {
    if (errno != EINTR) throw std::system_error(errno, std::generic_category(), "waitpid");
  }
  const int status = WIFEXITED(state) ? WEXITSTATUS(state) : 128 + WTERMSIG(state);
  return {status, out.Text(), err.Text()};
}

void ExpectSound(const std::filesystem::path& pdf) {
  ExpectPassesQpdf(pdf);
  if (PageCount(pdf) == "0\n") return;
  const std::filesystem::path pictures = OutputPath("pictures");
  std::filesystem::create_directory(pictures);
  // -N: without colour management, which not every build has.
  ExpectSilentSuccess(
      {"mutool", "draw", "-q", "-N", "-r", "18", "-o", pictures / "mupdf-%d.png", pdf});
  ExpectSilentSuccess({"pdftoppm", "-r", "18", "-png", pdf, pictures / "poppler"});
  ExpectSilentSuccess({"gs", "-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-dPDFSTOPONERROR",
                       "-dPDFSTOPONWARNING", "-sDEVICE=png16m", "-r18",
                       "-sOutputFile=" + (pictures / "ghostscript-%d.png").string(), pdf});
}

std::string TextOf(const std::filesystem::path& pdf) {
  const std::vector<std::string> command = {"pdftotext", "-raw", "-enc", "UTF-8", pdf, "-"};
  const ToolResult result = Run(command);
  EXPECT_EQ(result.status, 0) << Joined(command);
  EXPECT_EQ(result.err, "") << Joined(command);
  return result.out;
}

}  // namespace folivar::test
