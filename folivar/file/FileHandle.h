#pragma once

#include <cstdio>
#include <memory>
#include <string>

#include "folivar/base/Error.h"
#include "folivar/base/Text.h"

namespace folivar {

// Raises 52 for an empty name, for one that holds a NUL character and, where names are UTF-8, for
// one that holds a lone surrogate.
void CheckFileName(const Text& name);

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

// An open file without a buffer of its own; closed when it goes.
using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

enum class FileAction { kRead, kWrite };

// Opens a file for reading, or creates it, or cuts it to length 0, for writing. What is opened for
// reading and is no file, such as a pipe that nobody writes into, is not waited for. Raises what
// CheckFileName does, and what FileError makes of the system's refusal.
FileHandle OpenFile(const Text& name, FileAction action);

// What errors call a file: "file 'a.pdf'".
std::string FileNamed(const std::string& name);

// What the system refused, by its errno: 52, 53, 61, 70, 75 or 76, "file 'a.pdf': cannot be
// written: No space left on device". A file to read that is not there is 53; when one to write
// cannot be made, it is the folder that is missing: 76. Throws std::bad_alloc itself when it was
// memory that the system lacked.
Error FileError(FileAction action, const std::string& name, int reason);

}  // namespace folivar
