#include "folivar/file/FileHandle.h"

#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>
#endif

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <new>
#include <string_view>
#include <system_error>

namespace folivar {
namespace {

// Null, with errno set, when the file cannot be opened.
#ifdef _WIN32
std::FILE* Open(const Text& name, FileAction action) {
  const std::wstring path(name.Utf16().begin(), name.Utf16().end());
  return _wfopen(path.c_str(), action == FileAction::kRead ? L"rb" : L"wb");
}
#else
// Programs that the host starts meanwhile get none of the files.
std::FILE* Open(const Text& name, FileAction action) {
  if (action == FileAction::kWrite) return std::fopen(name.Utf8().c_str(), "wbe");
  const int descriptor = open(name.Utf8().c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (descriptor < 0) return nullptr;
  std::FILE* const file = fdopen(descriptor, "rb");
  if (file == nullptr) {
    const int reason = errno;
    close(descriptor);
    errno = reason;
  }
  return file;
}
#endif

std::int32_t NumberOf(FileAction action, int reason) {
  switch (reason) {
    case ENOSPC:
    case EFBIG:
#ifdef EDQUOT
    case EDQUOT:
#endif
      return Error::kDiskFull;
    case EACCES:
    case EPERM:
    case EROFS:
#ifdef ETXTBSY
    case ETXTBSY:
#endif
      return Error::kPermissionDenied;
    case ENOENT:
      if (action == FileAction::kRead) return Error::kFileNotFound;
      return Error::kPathNotFound;
    case ENOTDIR:
      return Error::kPathNotFound;
    case EINVAL:
    case EILSEQ:
    case ENAMETOOLONG:
      return Error::kBadFileName;
    default:
      return Error::kPathFileAccess;
  }
}

#ifdef _WIN32
bool CanBeNamed(std::u16string_view) { return true; }
#else
// Names are UTF-8, which cannot say a lone surrogate.
bool CanBeNamed(std::u16string_view name) {
  for (std::size_t i = 0; i < name.size(); ++i) {
    if (name[i] < 0xD800 || name[i] > 0xDFFF) continue;
    const bool isPair =
        name[i] < 0xDC00 && i + 1 < name.size() && name[i + 1] >= 0xDC00 && name[i + 1] <= 0xDFFF;
    if (!isPair) return false;
    ++i;
  }
  return true;
}
#endif

}  // namespace

void CheckFileName(const Text& name) {
  if (name.IsEmpty()) throw Error::BadFileName("a file name is wanted: it is empty");
  if (name.Utf16().find(u'\0') != std::u16string::npos) {
    throw Error::BadFileName("its name holds a NUL character").WithObject(FileNamed(name.Utf8()));
  }
  if (!CanBeNamed(name.Utf16())) {
    throw Error::BadFileName("its name holds a lone surrogate").WithObject(FileNamed(name.Utf8()));
  }
}

FileHandle OpenFile(const Text& name, FileAction action) {
  CheckFileName(name);
  errno = 0;
  FileHandle file(Open(name, action));
  if (!file) throw FileError(action, name.Utf8(), errno);
  std::setvbuf(file.get(), nullptr, _IONBF, 0);
  return file;
}

std::string FileNamed(const std::string& name) { return "file '" + name + "'"; }

Error FileError(FileAction action, const std::string& name, int reason) {
  if (reason == ENOMEM) throw std::bad_alloc();
  const bool isReading = action == FileAction::kRead;
  const std::string cause = std::string(isReading ? "cannot be read: " : "cannot be written: ") +
                            std::generic_category().message(reason);
  return Error(NumberOf(action, reason), cause).WithObject(FileNamed(name));
}

}  // namespace folivar
