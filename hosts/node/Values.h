#pragma once

#include "hosts/node/Environment.h"

namespace folivar::node {

// A value that the library gives, as JavaScript has it; it lets go of what the value holds.
napi_value TakeValue(Environment& environment, folivar_value& given);

// A value that the library lends, an argument of a callback.
napi_value ValueOf(Environment& environment, const folivar_value& lent);

}  // namespace folivar::node
