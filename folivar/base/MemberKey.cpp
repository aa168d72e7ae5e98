#include "folivar/base/MemberKey.h"

namespace folivar {

const Text& MemberKey::AsText() const {
  static const Text kNone;
  return text_ ? *text_ : kNone;
}

}  // namespace folivar
