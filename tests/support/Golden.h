#pragma once

#include <string_view>

namespace folivar::test {

// Expects `bytes` to be those of tests/golden/<name>; a difference shows the first line that
// differs and keeps the new bytes in the test's output folder.
//
// With the environment variable FOLIVAR_REGENERATE_GOLDEN set to 1 the file is written instead, and
// the test fails, so that a run that compares nothing never passes.
void ExpectGolden(std::string_view name, std::string_view bytes);

}  // namespace folivar::test
