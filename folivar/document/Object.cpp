#include "folivar/document/Object.h"

namespace folivar {

Object::~Object() = default;

}  // namespace folivar
