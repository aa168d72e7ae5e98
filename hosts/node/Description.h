#pragma once

#include "hosts/node/Environment.h"

namespace folivar::node {

// What index.js makes the module of: all that folivar_describe tells, as JavaScript objects.
//
//   [{ name: 'PDFPages', isCreatable: false, prototype: { Add(), get count() ... },
//      item: 'Item', members(), events: {} }, ...]
//
// `item` is the name of the default member, which is a function; `members` gives a collection's
// members as an array. Both are undefined where a class has none.
napi_value DescribeClasses(Environment& environment);

// { PDFHorzTextAlignment: { htaLeft: 0, ... }, ... }
napi_value DescribeEnumerations(Environment& environment);

}  // namespace folivar::node
