#include "folivar/document/HostPeer.h"

namespace folivar {

HostPeer::~HostPeer() = default;

}  // namespace folivar
