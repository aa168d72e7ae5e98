#pragma once

#include <memory>
#include <utility>

#include "folivar/base/Api.h"
#include "folivar/base/HostPeer.h"

namespace folivar {

// The base of every object that a host holds. Objects are made by a document, a page or a
// collection and shared: an owner holds its children, a child refers to its owner weakly, so a host
// may let go of what it holds in any order. A member that needs an owner that is gone raises 91.
class FOLIVAR_API Object : public std::enable_shared_from_this<Object> {
 public:
  virtual ~Object();
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;

  // For bindings to other object systems: what one keeps with the object, for as long as the object
  // lives. Null at first.
  HostPeer* Peer() const { return peer_.get(); }
  void SetPeer(std::unique_ptr<HostPeer> peer) { peer_ = std::move(peer); }

 protected:
  Object() = default;

  // This object as the owner keeps it; for handing to children.
  template <class T>
  std::shared_ptr<T> Shared() {
    return std::static_pointer_cast<T>(shared_from_this());
  }

 private:
  std::unique_ptr<HostPeer> peer_;
};

}  // namespace folivar
