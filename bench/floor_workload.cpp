#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "Workload.h"

// The least that any library has to do:
//
//   FILES BYTES FOLDER [FONT_FILE]
//       BYTES bytes, spread evenly over FILES files in FOLDER, once FONT_FILE is read
//   WORKLOAD BYTES FOLDER PICTURES
//       one file of BYTES bytes that holds what is in the pictures: JPEG files as they are, of
//       bitmaps the rows from the top down, without padding, red, green and blue in this order
//
// all in pieces that stay in the processor's cache, through buffers that are made once.

namespace {

constexpr std::size_t kPiece = std::size_t{256} * 1024;

struct Closer {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Closer>;

File Open(const std::string& path, const char* mode) {
  File file(std::fopen(path.c_str(), mode));
  if (!file) throw std::runtime_error("Cannot open '" + path + "'");
  std::setvbuf(file.get(), nullptr, _IONBF, 0);
  return file;
}

void Write(const File& file, std::string_view bytes) {
  if (std::fwrite(bytes.data(), 1, bytes.size(), file.get()) != bytes.size()) {
    throw std::runtime_error("Cannot write");
  }
}

void WriteFill(const File& file, std::size_t size) {
  const std::string piece(std::min(kPiece, size), 'x');
  while (size > 0) {
    const std::size_t count = std::min(size, piece.size());
    Write(file, std::string_view(piece).substr(0, count));
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

void WriteFiles(std::size_t fileCount, std::size_t size, const std::string& folder) {
  for (std::size_t i = 0; i < fileCount; ++i) {
    const std::size_t end = size * (i + 1) / fileCount;
    WriteFill(Open(folder + "/" + std::to_string(i) + ".pdf", "wb"), end - size * i / fileCount);
  }
}

// Both return how many bytes they wrote.
std::size_t CopyJpeg(const File& from, const File& to) {
  static std::string piece(kPiece, '\0');
  std::size_t written = 0;
  while (const std::size_t size = std::fread(piece.data(), 1, piece.size(), from.get())) {
    Write(to, std::string_view(piece).substr(0, size));
    written += size;
  }
  return written;
}

std::size_t CopyBitmap(const File& from, const File& to) {
  constexpr std::size_t kHeaders = 54;
  constexpr std::size_t kRow = std::size_t{bench::kPictureWidth} * 3;
  constexpr std::size_t kDistance = (kRow + 3) / 4 * 4;
  constexpr std::size_t kRows = kPiece / kDistance;
  constexpr std::size_t kHeight = bench::kPictureHeight;
  static std::string in(kRows * kDistance, '\0');
  static std::string out(kRows * kRow, '\0');
  for (std::size_t top = 0; top < kHeight; top += kRows) {
    const std::size_t rows = std::min(kRows, kHeight - top);
    const std::size_t place = kHeaders + (kHeight - top - rows) * kDistance;
    if (std::fseek(from.get(), static_cast<long>(place), SEEK_SET) != 0 ||
        std::fread(in.data(), 1, rows * kDistance, from.get()) != rows * kDistance) {
      throw std::runtime_error("A bitmap is too short");
    }
    for (std::size_t row = 0; row < rows; ++row) {
      const char* source = in.data() + (rows - 1 - row) * kDistance;
      char* target = out.data() + row * kRow;
      for (std::size_t i = 0; i < kRow; i += 3) {
        target[i] = source[i + 2];
        target[i + 1] = source[i + 1];
        target[i + 2] = source[i];
      }
    }
    Write(to, std::string_view(out).substr(0, rows * kRow));
  }
  return kHeight * kRow;
}

void WritePictures(std::string_view workload, std::size_t size, const std::string& folder,
                   const std::string& pictureFolder) {
  const bool isJpeg = workload == "jpeg";
  if (!isJpeg && workload != "bmp") throw std::runtime_error("No pictures are in this workload");
  const File to = Open(folder + "/0.pdf", "wb");
  std::size_t written = 0;
  for (std::size_t i = 0; i < bench::kPictureCount; ++i) {
    const File from =
        Open(pictureFolder + "/" + std::to_string(i) + (isJpeg ? ".jpg" : ".bmp"), "rb");
    written += isJpeg ? CopyJpeg(from, to) : CopyBitmap(from, to);
  }
  if (written > size) throw std::runtime_error("The pictures have more bytes than the output");
  WriteFill(to, size - written);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    if (argc < 4 || argc > 5) {
      throw std::runtime_error(
          "Arguments: FILES BYTES FOLDER [FONT_FILE], or WORKLOAD BYTES FOLDER PICTURES");
    }
    const std::string_view first = argv[1];
    if (first == "jpeg" || first == "bmp") {
      if (argc != 5) throw std::runtime_error("The folder of the pictures is missing");
      WritePictures(first, bench::NumberFrom(argv[2]), argv[3], argv[4]);
    } else {
      const std::string font = argc == 5 ? ReadFile(argv[4]) : std::string();
      WriteFiles(bench::NumberFrom(first), bench::NumberFrom(argv[2]), argv[3]);
    }
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s: %s\n", argv[0], error.what());
    return 1;
  }
}
