#pragma once

#include <memory>

namespace folivar {

class Internal;
class PDFFontInfo;
class PDFFonts;

// Role of what draws in a face: the library asks it for the face's record and for the collection
// that the record belongs to.
class FaceUser {
 public:
  virtual const std::shared_ptr<const PDFFontInfo>& FontInfo(const Internal&) const = 0;
  virtual const std::weak_ptr<PDFFonts>& Owner(const Internal&) const = 0;

 protected:
  FaceUser() = default;
  ~FaceUser() = default;
  FaceUser(const FaceUser&) = default;
  FaceUser& operator=(const FaceUser&) = default;
};

}  // namespace folivar
