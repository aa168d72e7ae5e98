#pragma once

#include <string>

#include "folivar/base/Text.h"
#include "folivar/file/ByteSource.h"
#include "folivar/file/FileHandle.h"

namespace folivar {

// A file opened for reading. Failures raise the file errors (52, 53 for a file that is not there,
// 70, 75 also for a folder, pipe, socket or device, 76); their text names the file and gives the
// system's reason.
class FileSource final : public ByteSource {
 public:
  explicit FileSource(const Text& name);

  // As it was when the file was opened.
  std::uint64_t Size() const override { return size_; }
  std::size_t Read(std::uint64_t offset, std::span<char> out) override;

 private:
  void Seek(std::uint64_t offset, int origin);

  static constexpr std::uint64_t kUnknown = ~std::uint64_t{0};

  std::string name_;  // UTF-8, for error texts
  FileHandle file_;
  std::uint64_t size_ = 0;
  std::uint64_t position_ = 0;
};

}  // namespace folivar
