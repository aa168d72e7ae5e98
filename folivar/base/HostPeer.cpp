#include "folivar/base/HostPeer.h"

namespace folivar {

HostPeer::~HostPeer() = default;

}  // namespace folivar
