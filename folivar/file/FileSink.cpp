#include "folivar/file/FileSink.h"

#include <cerrno>
#include <cstddef>
#include <cstdio>

#include "folivar/file/WriteSignals.h"

namespace folivar {

FileSink::FileSink(TextView fileName) {
  const Text name(fileName);
  name_ = name.Utf8();
  file_ = OpenFile(name, FileAction::kWrite);
}

void FileSink::Write(std::string_view bytes) {
  std::size_t written = 0;
  {
    const WriteSignals held;
    written = std::fwrite(bytes.data(), 1, bytes.size(), file_.get());
  }
  if (written != bytes.size()) throw FileError(FileAction::kWrite, name_, errno);
}

void FileSink::Close() {
  errno = 0;
  if (std::fclose(file_.release()) != 0) throw FileError(FileAction::kWrite, name_, errno);
}

}  // namespace folivar
