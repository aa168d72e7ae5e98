#pragma once

#include <memory>

namespace folivar {

class PDFFontInfo;
class PDFFonts;

// Role of what draws in a face: the library asks it for the face's record and for the collection
// that the record belongs to.
class FaceUser {
 public:
  virtual const std::shared_ptr<PDFFontInfo>& FontInfo() const = 0;
  virtual const std::weak_ptr<PDFFonts>& Owner() const = 0;

 protected:
  FaceUser() = default;
  ~FaceUser() = default;
  FaceUser(const FaceUser&) = default;
  FaceUser& operator=(const FaceUser&) = default;
};

}  // namespace folivar
