#pragma once

#include <memory>

#include "folivar/document/Api.h"

namespace folivar {

// The base of every object that a host holds. Objects are made by a document, a page or a
// collection and shared: an owner holds its children, a child refers to its owner weakly, so a host
// may let go of what it holds in any order. A member that needs an owner that is gone raises 91.
class FOLIVAR_API Object : public std::enable_shared_from_this<Object> {
 public:
  virtual ~Object();
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;

 protected:
  Object() = default;

  // This object as the owner keeps it; for handing to children.
  template <class T>
  std::shared_ptr<T> Shared() {
    return std::static_pointer_cast<T>(shared_from_this());
  }
};

}  // namespace folivar
