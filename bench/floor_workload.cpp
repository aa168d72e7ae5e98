#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

#include "Workload.h"

// The least that any library has to do: BYTES bytes, spread evenly over FILES files in FOLDER,
// written in pieces of at most 1 MiB, once FONT_FILE is read.

namespace {

constexpr std::size_t kPiece = std::size_t{1} << 20;

struct Closer {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

void WriteFile(const std::string& path, std::size_t size, const std::string& piece) {
  const std::unique_ptr<std::FILE, Closer> file(std::fopen(path.c_str(), "wb"));
  if (!file) throw std::runtime_error("Cannot open '" + path + "'");
  std::setvbuf(file.get(), nullptr, _IONBF, 0);
  while (size > 0) {
    const std::size_t count = std::min(size, piece.size());
    if (std::fwrite(piece.data(), 1, count, file.get()) != count) {
      throw std::runtime_error("Cannot write '" + path + "'");
    }
    size -= count;
  }
}

std::string ReadFile(const char* path) {
  const std::unique_ptr<std::FILE, Closer> file(std::fopen(path, "rb"));
  if (!file) throw std::runtime_error(std::string("Cannot open '") + path + "'");
  std::setvbuf(file.get(), nullptr, _IONBF, 0);
  std::string bytes(std::filesystem::file_size(path), '\0');
  if (std::fread(bytes.data(), 1, bytes.size(), file.get()) != bytes.size()) {
    throw std::runtime_error(std::string("Cannot read '") + path + "'");
  }
  return bytes;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    if (argc < 4 || argc > 5) {
      throw std::runtime_error("Arguments: FILES BYTES FOLDER [FONT_FILE]");
    }
    const std::string font = argc > 4 ? ReadFile(argv[4]) : std::string();
    const std::size_t fileCount = bench::NumberFrom(argv[1]);
    const std::size_t size = bench::NumberFrom(argv[2]);
    const std::string piece(std::min(kPiece, size), 'x');
    for (std::size_t i = 0; i < fileCount; ++i) {
      const std::size_t end = size * (i + 1) / fileCount;
      WriteFile(std::string(argv[3]) + "/" + std::to_string(i) + ".pdf", end - size * i / fileCount,
                piece);
    }
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s: %s\n", argv[0], error.what());
    return 1;
  }
}
