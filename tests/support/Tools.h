#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace folivar::test {

struct ToolResult {
  int status;  // exit status; 128 + the signal for a program that a signal ended
  std::string out;
  std::string err;
};

// Runs a program, found along the PATH, without a shell and without input. Throws
// std::runtime_error for a program that cannot be started: a missing tool fails the test.
ToolResult Run(const std::vector<std::string>& command);

// Expects other people's tools to find nothing wrong: qpdf checks the file, and MuPDF, poppler and
// Ghostscript (stopping on errors) draw all its pages, each without a message. A document without
// pages is for qpdf alone, since there is nothing to draw.
void ExpectSound(const std::filesystem::path& pdf);

// The document's text as poppler extracts it, in the order of the content: UTF-8, "\n" behind each
// line and "\f" behind each page.
std::string TextOf(const std::filesystem::path& pdf);

}  // namespace folivar::test
