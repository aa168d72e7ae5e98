#include <folivar/folivar.h>

#include <chrono>
#include <cstddef>
#include <cstdio>
#include <exception>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "../Workload.h"

// What calls of DrawText take in C++, and beside it in C (calls.c), Python (calls.py) and
// JavaScript (calls.js):
//
//   LINES_FILE PAGES
//
// prints the nanoseconds that it takes to draw 60 lines of the file on each page of a new document.
// Once only: memory that comes back from an earlier document would favour some languages.

namespace {

constexpr std::size_t kLinesOfPage = 60;

struct Row {
  std::string line;
  float y;
};

std::vector<Row> ReadRows(const char* path) {
  std::ifstream file(path);
  std::vector<Row> rows(kLinesOfPage);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (!std::getline(file, rows[i].line)) throw std::runtime_error("Too few lines");
    rows[i].y = 750.5F - 11.75F * static_cast<float>(i);
  }
  return rows;
}

std::chrono::nanoseconds Draw(const std::vector<Row>& rows, std::size_t pageCount) {
  const auto document = folivar::PDFDocument::Create();
  std::vector<std::shared_ptr<folivar::PDFPage>> pages;
  for (std::size_t i = 0; i < pageCount; ++i) pages.push_back(document->Pages()->Add());

  const auto start = std::chrono::steady_clock::now();
  for (const auto& page : pages) {
    for (const Row& row : rows) page->DrawText(row.line, 72, row.y);
  }
  return std::chrono::steady_clock::now() - start;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    if (argc != 3) throw std::runtime_error("Arguments: LINES_FILE PAGES");
    const std::chrono::nanoseconds taken = Draw(ReadRows(argv[1]), bench::NumberFrom(argv[2]));
    std::printf("%lld\n", static_cast<long long>(taken.count()));
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s: %s\n", argv[0], error.what());
    return 1;
  }
}
