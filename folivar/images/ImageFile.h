#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <utility>

#include "folivar/file/ByteSource.h"
#include "folivar/file/FileHandle.h"

namespace folivar {

// A file that holds an image, while it is open for reading.
class ImageFile {
 public:
  // `name` is for error texts.
  ImageFile(ByteSource& bytes, std::string name) : bytes_(bytes), name_(std::move(name)) {}

  // "file 'logo.bmp'"
  std::string Name() const { return FileNamed(name_); }

  std::uint64_t Size() const { return bytes_.Size(); }

  // As ByteSource::Read.
  std::size_t Read(std::uint64_t offset, std::span<char> out) { return bytes_.Read(offset, out); }

  // Fills `out` with the bytes from `offset` on, which the file had when it was inspected. Raises
  // 62 when it has them no longer.
  void ReadAgain(std::uint64_t offset, std::span<char> out);

 private:
  ByteSource& bytes_;
  std::string name_;
};

}  // namespace folivar
