#include "folivar/file/FileSource.h"

#include <cerrno>
#include <cstdio>

#include "folivar/file/FileSystem.h"

namespace folivar {
namespace {

#ifdef _WIN32
int SeekTo(std::FILE* file, std::int64_t offset, int origin) {
  return _fseeki64(file, offset, origin);
}
std::int64_t PositionIn(std::FILE* file) { return _ftelli64(file); }
#else
int SeekTo(std::FILE* file, std::int64_t offset, int origin) {
  return fseeko(file, offset, origin);
}
std::int64_t PositionIn(std::FILE* file) { return ftello(file); }
#endif

// A pipe or a device has no size and no end. Of what is not there the system tells more.
void RefuseAllButFiles(FileKind kind, const std::string& name) {
  if (kind == FileKind::kFolder) throw FileError(FileAction::kRead, name, EISDIR);
  if (kind == FileKind::kOther) {
    throw Error::PathFileAccess("cannot be read: it is a pipe, a socket or a device, not a file")
        .WithObject(FileNamed(name));
  }
}

}  // namespace

FileSource::FileSource(const Text& name) : name_(name.Utf8()) {
  CheckFileName(name);
  // Before it is opened, which some devices take for a command, and after: it may be another by
  // then.
  RefuseAllButFiles(KindOf(name), name_);
  file_ = OpenFile(name, FileAction::kRead);
  RefuseAllButFiles(KindOf(file_.get()), name_);
  Seek(0, SEEK_END);
  const std::int64_t end = PositionIn(file_.get());
  if (end < 0) throw FileError(FileAction::kRead, name_, errno);
  size_ = position_ = static_cast<std::uint64_t>(end);
}

std::size_t FileSource::Read(std::uint64_t offset, std::span<char> out) {
  if (offset >= size_) return 0;
  if (offset != position_) Seek(offset, SEEK_SET);
  position_ = kUnknown;
  errno = 0;
  const std::size_t read = std::fread(out.data(), 1, out.size(), file_.get());
  if (read < out.size() && std::ferror(file_.get()) != 0) {
    throw FileError(FileAction::kRead, name_, errno);
  }
  position_ = offset + read;
  return read;
}

void FileSource::Seek(std::uint64_t offset, int origin) {
  errno = 0;
  if (SeekTo(file_.get(), static_cast<std::int64_t>(offset), origin) != 0) {
    throw FileError(FileAction::kRead, name_, errno);
  }
}

}  // namespace folivar
