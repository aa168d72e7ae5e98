#include "folivar/file/FileHandle.h"

#include <cerrno>
#include <system_error>

namespace folivar {
namespace {

// Null, with errno set, when the file cannot be opened.
std::FILE* Open(const Text& name, FileAction action) {
#ifdef _WIN32
  const std::wstring path(name.Utf16().begin(), name.Utf16().end());
  return _wfopen(path.c_str(), action == FileAction::kRead ? L"rb" : L"wb");
#else
  return std::fopen(name.Utf8().c_str(), action == FileAction::kRead ? "rb" : "wb");
#endif
}

}  // namespace

void CheckFileName(const Text& name) {
  if (name.IsEmpty()) throw Error::BadFileName("A file name is wanted: it is empty");
  if (name.Utf16().find(u'\0') != std::u16string::npos) {
    throw Error::BadFileName("The file name '" + name.Utf8() + "' holds a NUL character");
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

Error FileError(FileAction action, const std::string& name, int reason) {
  const bool isReading = action == FileAction::kRead;
  const std::string text = std::string(isReading ? "Cannot read file '" : "Cannot write file '") +
                           name + "': " + std::generic_category().message(reason);
  switch (reason) {
    case ENOSPC:
    case EFBIG:
#ifdef EDQUOT
    case EDQUOT:
#endif
      return Error::DiskFull(text);
    case EACCES:
    case EPERM:
    case EROFS:
#ifdef ETXTBSY
    case ETXTBSY:
#endif
      return Error::PermissionDenied(text);
    case ENOENT:
      return isReading ? Error::FileNotFound(text) : Error::PathNotFound(text);
    case ENOTDIR:
      return Error::PathNotFound(text);
    case EINVAL:
    case EILSEQ:
    case ENAMETOOLONG:
      return Error::BadFileName(text);
    default:
      return Error::PathFileAccess(text);
  }
}

}  // namespace folivar
