#pragma once

namespace folivar {

// Whether an image keeps its proportions where it is drawn.
enum class AspectRatio { kKeep, kStretch };

}  // namespace folivar
