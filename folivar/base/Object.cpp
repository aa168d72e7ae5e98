#include "folivar/base/Object.h"

namespace folivar {

Object::~Object() = default;

}  // namespace folivar
