#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "folivar/base/Text.h"
#include "folivar/fonts/AfmReader.h"
#include "folivar/fonts/StandardFaceFiles.h"

namespace folivar {

// The fourteen standard faces, by their place in the sorted list of names ("Courier" is 0).

std::string_view StandardFaceName(std::size_t face);

// By name, without regard to case.
std::optional<std::size_t> FindStandardFace(TextView name);

// Read from the built-in file once per process, on first use; from any thread.
const AfmMetrics& StandardFaceMetrics(std::size_t face);

}  // namespace folivar
