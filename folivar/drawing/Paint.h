#pragma once

namespace folivar {

// What is done with a path.
enum class Paint { kNone, kStroke, kFill, kStrokeAndFill };

}  // namespace folivar
