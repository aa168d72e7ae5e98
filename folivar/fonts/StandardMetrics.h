#pragma once

#include <cstddef>
#include <memory>

#include "folivar/fonts/PDFFontInfo.h"

namespace folivar {

// The record of one of the fourteen, by its place in their list, without its resource name.
std::shared_ptr<PDFFontInfo> LoadStandardMetrics(std::size_t face);

}  // namespace folivar
