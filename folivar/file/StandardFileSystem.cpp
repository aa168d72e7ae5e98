// The file system as the standard library has it; what that does not tell, as POSIX does.

#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include "folivar/base/Error.h"
#include "folivar/file/FileHandle.h"
#include "folivar/file/FileSystem.h"

namespace folivar {
namespace {

namespace fs = std::filesystem;

FileKind KindOf(fs::file_status status) {
  switch (status.type()) {
    case fs::file_type::regular:
      return FileKind::kFile;
    case fs::file_type::directory:
      return FileKind::kFolder;
    case fs::file_type::none:
    case fs::file_type::not_found:
      return FileKind::kNone;
    default:
      return FileKind::kOther;
  }
}

FileId IdOf(const struct stat& status) { return {status.st_dev, status.st_ino}; }

std::int64_t Nanoseconds(const timespec& time) {
  constexpr std::int64_t kSecond = 1'000'000'000;
  return time.tv_sec * kSecond + time.tv_nsec;
}

Text NameOf(const fs::path& path) {
  std::u8string name = path.u8string();
  try {
    return Text(name);
  } catch (const Error&) {
    std::replace_if(
        name.begin(), name.end(), [](char8_t byte) { return byte >= 0x80; }, u8'?');
    return Text(name);
  }
}

}  // namespace

FileKind KindOf(const Text& name) {
  std::error_code ignored;
  return KindOf(fs::status(name.Utf8(), ignored));
}

FileKind KindOf(std::FILE* file) {
  struct stat status;
  if (fstat(fileno(file), &status) != 0) return FileKind::kNone;
  if (S_ISREG(status.st_mode)) return FileKind::kFile;
  return S_ISDIR(status.st_mode) ? FileKind::kFolder : FileKind::kOther;
}

std::optional<FileStamp> StampOf(const Text& name) {
  struct stat file = {};
  if (stat(name.Utf8().c_str(), &file) != 0 || !S_ISREG(file.st_mode)) return std::nullopt;
  return FileStamp{static_cast<std::uint64_t>(file.st_size), Nanoseconds(file.st_mtim),
                   Nanoseconds(file.st_ctim), IdOf(file)};
}

std::optional<FileId> FileIdOf(const Text& name) {
  struct stat status;
  if (stat(name.Utf8().c_str(), &status) != 0) return std::nullopt;
  return IdOf(status);
}

Text AbsoluteName(const Text& name) {
  CheckFileName(name);
  return NameOf(fs::absolute(name.Utf8()));
}

std::vector<FolderEntry> EntriesOf(const Text& folder, std::error_code& error) {
  std::vector<FolderEntry> entries;
  fs::directory_iterator entry(folder.Utf8(), error);
  for (; !error && entry != end(entry); entry.increment(error)) {
    std::error_code ignored;
    const FileKind kind = KindOf(entry->status(ignored));
    entries.push_back({NameOf(entry->path()), kind, entry->is_symlink(ignored)});
  }
  return entries;
}

}  // namespace folivar
