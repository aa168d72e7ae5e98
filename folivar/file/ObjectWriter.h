#pragma once

namespace folivar {

class ObjectNumbers;
class SaveFile;

// Role of everything that becomes objects of the file. A save walks its writers twice in the same
// order: first each takes numbers for its objects, then each writes them, in ascending order and
// exactly as many as it took.
//
// The operations speak in types that only the library can make, so a host that holds a writer
// cannot run them.
class ObjectWriter {
 public:
  virtual void NumberObjects(ObjectNumbers& numbers) = 0;
  virtual void WriteObjects(SaveFile& file) = 0;

 protected:
  ObjectWriter() = default;
  ~ObjectWriter() = default;
  ObjectWriter(const ObjectWriter&) = default;
  ObjectWriter& operator=(const ObjectWriter&) = default;
};

}  // namespace folivar
