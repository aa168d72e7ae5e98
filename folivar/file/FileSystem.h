#pragma once

#include <compare>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <system_error>
#include <vector>

#include "folivar/base/Text.h"

namespace folivar {

// What is asked of the system's files besides reading and writing them. Windows answers itself: its
// standard library's file system would make a DLL twice as large.

enum class FileKind { kNone, kFile, kFolder, kOther };

// Links count as what they lead to. kNone also where the system does not tell.
FileKind KindOf(const Text& name);
// Of what is open.
FileKind KindOf(std::FILE* file);

// Which file it is, whatever its name: links lead to it, and it may have several names. Nothing for
// what is not there or is not told.
struct FileId {
  std::uint64_t volume;
  std::uint64_t file;

  friend auto operator<=>(const FileId&, const FileId&) = default;
};
std::optional<FileId> FileIdOf(const Text& name);

// What changes when a file does, or when another takes its name; times in the system's units.
struct FileStamp {
  std::uint64_t size;
  std::int64_t time;     // when it was last written, as programs may set it
  std::int64_t changed;  // the same as the system alone sets it; on Windows when it was made
  FileId id{};           // 0 each where the system does not tell

  friend auto operator<=>(const FileStamp&, const FileStamp&) = default;
};
// Nothing where the system does not tell, and for what is not a file.
std::optional<FileStamp> StampOf(const Text& name);

// The name taken from the working folder, as long as that is the same. Raises 52 for what cannot be
// a name.
Text AbsoluteName(const Text& name);

struct FolderEntry {
  Text name;  // with the folder's
  FileKind kind;
  bool isLink;
};
// In any order, and as far as the system tells them; `error` says why not further. A name that is
// not UTF-8, which some systems allow, is shown as far as it is ASCII, and then is not found.
std::vector<FolderEntry> EntriesOf(const Text& folder, std::error_code& error);

}  // namespace folivar
