#include "folivar/document/FileSink.h"

#include <cerrno>
#include <system_error>

#include "folivar/document/Error.h"
#include "folivar/document/InMember.h"

namespace folivar {
namespace {

Error FileError(const std::string& name, int reason) {
  const std::string text =
      "Cannot write file '" + name + "': " + std::generic_category().message(reason);
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

// Null, with errno set, when the file cannot be opened.
std::FILE* OpenForWriting(const Text& name) {
#ifdef _WIN32
  // The system's own form of a file name is UTF-16.
  const std::wstring path(name.Utf16().begin(), name.Utf16().end());
  return _wfopen(path.c_str(), L"wb");
#else
  return std::fopen(name.Utf8().c_str(), "wb");
#endif
}

}  // namespace

FileSink::FileSink(TextView fileName) {
  const Text name = InMember("SavePDFFile", [&] { return Text(fileName); });
  name_ = name.Utf8();
  if (name.IsEmpty()) throw Error::BadFileName("A file name is wanted: it is empty");
  if (name.Utf16().find(u'\0') != std::u16string::npos) {
    throw Error::BadFileName("The file name '" + name_ + "' holds a NUL character");
  }
  errno = 0;
  file_.reset(OpenForWriting(name));
  if (!file_) throw FileError(name_, errno);
  // What arrives here is gathered into large pieces already.
  std::setvbuf(file_.get(), nullptr, _IONBF, 0);
}

void FileSink::Write(std::string_view bytes) {
  errno = 0;
  if (std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) != bytes.size()) {
    throw FileError(name_, errno);
  }
}

void FileSink::Close() {
  errno = 0;
  if (std::fclose(file_.release()) != 0) throw FileError(name_, errno);
}

}  // namespace folivar
