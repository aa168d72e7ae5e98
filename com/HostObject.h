#pragma once

#include <memory>

#include "com/ComPrefix.h"
#include "folivar/base/HostPeer.h"
#include "folivar/base/Object.h"

namespace folivar::com {

// How an object finds out whether a pointer from a client is a face of this library, and whose.
// Known to nobody else, so that neither a proxy nor somebody's own class can be taken for a face.
MIDL_INTERFACE("0B39CF01-B325-450F-8017-032EC9BAE749")
IHostObject : public IUnknown {
 public:
  virtual std::shared_ptr<Object> HostObject() = 0;
};

// The object behind a client's pointer, null for null. Raises 13 when it is no object of this
// library.
std::shared_ptr<Object> ObjectBehind(IUnknown* face);

// What an object of the core keeps: its one face.
class FacePeer : public HostPeer {
 public:
  virtual IDispatch* Face() = 0;
};

}  // namespace folivar::com

__CRT_UUID_DECL(folivar::com::IHostObject, 0x0B39CF01, 0xB325, 0x450F, 0x80, 0x17, 0x03, 0x2E, 0xC9,
                0xBA, 0xE7, 0x49)
