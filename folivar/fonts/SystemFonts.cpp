#include "folivar/fonts/SystemFonts.h"

namespace folivar {

SystemFace::~SystemFace() = default;
Text SystemFace::FileName() { return {}; }

SystemFonts::~SystemFonts() = default;

}  // namespace folivar
