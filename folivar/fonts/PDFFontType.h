#pragma once

#include <cstdint>

namespace folivar {

enum PDFFontType : std::int32_t {
  fontType1 = 0,     // the fourteen standard faces, which every reader has
  fontTrueType = 1,  // the system's TrueType faces
};

}  // namespace folivar
