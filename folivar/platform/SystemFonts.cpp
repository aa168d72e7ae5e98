#include "folivar/platform/SystemFonts.h"

namespace folivar {

SystemFace::~SystemFace() = default;
SystemFonts::~SystemFonts() = default;

}  // namespace folivar
