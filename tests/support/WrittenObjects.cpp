#include "tests/support/WrittenObjects.h"

#include "folivar/file/ObjectNumbers.h"
#include "folivar/file/SaveFile.h"
#include "tests/support/MemorySink.h"

namespace folivar::test {

std::string WrittenObjects(FaceWriter& writer) {
  ObjectNumbers numbers;
  writer.NumberObjects(numbers);
  MemorySink sink;
  SaveFile file(sink);
  writer.WriteObjects(file);
  file.Finish(Reference(1));
  const std::string& bytes = sink.Bytes();
  const std::size_t start = bytes.find("1 0 obj\n");
  return bytes.substr(start, bytes.rfind("\nxref\n") + 1 - start);
}

}  // namespace folivar::test
