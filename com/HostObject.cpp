#include "com/HostObject.h"

#include <wrl/client.h>

#include "folivar/base/Error.h"

namespace folivar::com {

std::shared_ptr<Object> ObjectBehind(IUnknown* face) {
  if (face == nullptr) return nullptr;
  Microsoft::WRL::ComPtr<IHostObject> host;
  if (FAILED(face->QueryInterface(__uuidof(IHostObject), &host))) {
    throw Error::TypeMismatch("An object is none of Folivar's");
  }
  return host->HostObject();
}

}  // namespace folivar::com
