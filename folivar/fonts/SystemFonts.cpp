#include "folivar/fonts/SystemFonts.h"

namespace folivar {

SystemFace::~SystemFace() = default;
SystemFonts::~SystemFonts() = default;

}  // namespace folivar
