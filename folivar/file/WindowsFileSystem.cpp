// The file system as Windows has it.

#define NOMINMAX
#define WIN32_LEAN_AND_MEAN
#include <io.h>
#include <windows.h>

#include <cwchar>
#include <memory>
#include <string>
#include <string_view>

#include "folivar/base/Error.h"
#include "folivar/file/FileHandle.h"
#include "folivar/file/FileSystem.h"

namespace folivar {
namespace {

std::wstring WideFrom(const Text& name) { return {name.Utf16().begin(), name.Utf16().end()}; }

Text TextFrom(std::wstring_view name) { return Text::Of({name.begin(), name.end()}); }

std::error_code LastError() { return {static_cast<int>(GetLastError()), std::system_category()}; }

FileKind KindOf(DWORD attributes) {
  return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? FileKind::kFolder : FileKind::kFile;
}

struct SearchCloser {
  using pointer = HANDLE;
  void operator()(HANDLE search) const { FindClose(search); }
};
using Search = std::unique_ptr<HANDLE, SearchCloser>;

std::uint64_t Joined(DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; }

}  // namespace

FileKind KindOf(const Text& name) {
  const DWORD attributes = GetFileAttributesW(WideFrom(name).c_str());
  return attributes == INVALID_FILE_ATTRIBUTES ? FileKind::kNone : KindOf(attributes);
}

FileKind KindOf(std::FILE* file) {
  const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(file)));
  return GetFileType(handle) == FILE_TYPE_DISK ? FileKind::kFile : FileKind::kOther;
}

// Opened without any right, so that it does not matter who else has the file open.
std::optional<FileId> FileIdOf(const Text& name) {
  constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  HANDLE file = CreateFileW(WideFrom(name).c_str(), 0, kShareAll, nullptr, OPEN_EXISTING,
                            FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (file == INVALID_HANDLE_VALUE) return std::nullopt;
  BY_HANDLE_FILE_INFORMATION told;
  const bool isTold = GetFileInformationByHandle(file, &told) != 0;
  CloseHandle(file);
  if (!isTold) return std::nullopt;
  return FileId{told.dwVolumeSerialNumber, Joined(told.nFileIndexHigh, told.nFileIndexLow)};
}

std::optional<FileStamp> StampOf(const Text& name) {
  WIN32_FILE_ATTRIBUTE_DATA data;
  if (!GetFileAttributesExW(WideFrom(name).c_str(), GetFileExInfoStandard, &data)) {
    return std::nullopt;
  }
  if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return std::nullopt;
  const auto time = [](const FILETIME& value) {
    return static_cast<std::int64_t>(Joined(value.dwHighDateTime, value.dwLowDateTime));
  };
  return FileStamp{Joined(data.nFileSizeHigh, data.nFileSizeLow), time(data.ftLastWriteTime),
                   time(data.ftCreationTime), FileIdOf(name).value_or(FileId{})};
}

Text AbsoluteName(const Text& name) {
  CheckFileName(name);
  const std::wstring relative = WideFrom(name);
  std::wstring absolute(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetFullPathNameW(relative.c_str(), static_cast<DWORD>(absolute.size()),
                                          absolute.data(), nullptr);
    if (length == 0) {
      throw Error::BadFileName("cannot be a name: " + LastError().message())
          .WithObject(FileNamed(name.Utf8()));
    }
    const bool fits = length < absolute.size();
    absolute.resize(length);
    if (fits) return TextFrom(absolute);
  }
}

std::vector<FolderEntry> EntriesOf(const Text& folder, std::error_code& error) {
  error.clear();
  std::vector<FolderEntry> entries;
  std::wstring path = WideFrom(folder);
  if (!path.empty() && path.back() != L'\\' && path.back() != L'/') path += L'\\';
  WIN32_FIND_DATAW found;
  HANDLE opened = FindFirstFileW((path + L'*').c_str(), &found);
  if (opened == INVALID_HANDLE_VALUE) {
    error = LastError();
    return entries;
  }
  const Search search(opened);
  do {
    const std::wstring_view name = found.cFileName;
    if (name == L"." || name == L"..") continue;
    const bool isLink = (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    entries.push_back(
        {TextFrom(path + std::wstring(name)), KindOf(found.dwFileAttributes), isLink});
  } while (FindNextFileW(opened, &found));
  if (GetLastError() != ERROR_NO_MORE_FILES) error = LastError();
  return entries;
}

}  // namespace folivar
