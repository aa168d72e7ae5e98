#pragma once

namespace folivar {

// The key to constructors that hosts must not call. Hosts see only its declaration (this header is
// not installed), so they cannot make one.
class Internal {};

}  // namespace folivar
