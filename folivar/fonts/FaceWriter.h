#pragma once

namespace folivar {

class ObjectNumbers;
class SaveFile;

// Role of what writes a face into the file. A save asks it twice: first it takes numbers for its
// objects, then it writes them, in ascending order and exactly as many as it took.
class FaceWriter {
 public:
  virtual ~FaceWriter() = default;
  FaceWriter(const FaceWriter&) = delete;
  FaceWriter& operator=(const FaceWriter&) = delete;

  virtual void NumberObjects(ObjectNumbers& numbers) = 0;
  virtual void WriteObjects(SaveFile& file) = 0;

 protected:
  FaceWriter() = default;
};

}  // namespace folivar
