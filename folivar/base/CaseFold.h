#pragma once

#include <string>
#include <string_view>

#include "folivar/base/Text.h"

namespace folivar {

// Comparing names and keys without regard to case, the same on every system: Unicode's one-to-one
// case folding of the basic plane, independent of the locale.

char16_t FoldCase(char16_t unit);

// The text with every unit folded: equal for texts that differ only in case.
std::u16string FoldCase(TextView text);

bool StartsWithIgnoringCase(TextView text, TextView start);

// Below 0, 0 or above 0, by folded units.
int CompareIgnoringCase(TextView a, TextView b);

}  // namespace folivar
