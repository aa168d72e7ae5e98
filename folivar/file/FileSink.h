#pragma once

#include <string>
#include <string_view>

#include "folivar/base/Text.h"
#include "folivar/file/ByteSink.h"
#include "folivar/file/FileHandle.h"

namespace folivar {

// A file opened for writing: created, or cut to length 0. Failures raise the file errors (52, 61,
// 70, 75, 76); their text names the file and gives the system's reason. The handle is closed in any
// case.
class FileSink final : public ByteSink {
 public:
  explicit FileSink(TextView fileName);

  void Write(std::string_view bytes) override;

  // Ends the file. Bytes that the system could not store are reported here at the latest.
  void Close();

 private:
  std::string name_;  // UTF-8, for error texts
  FileHandle file_;   // bytes that arrive are gathered into large pieces already
};

}  // namespace folivar
