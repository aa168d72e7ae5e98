#pragma once

#include "folivar/base/Api.h"

namespace folivar {

// What a binding to another object system keeps with an object: what stands for it there.
class FOLIVAR_API HostPeer {
 public:
  virtual ~HostPeer();
  HostPeer(const HostPeer&) = delete;
  HostPeer& operator=(const HostPeer&) = delete;

 protected:
  HostPeer() = default;
};

}  // namespace folivar
