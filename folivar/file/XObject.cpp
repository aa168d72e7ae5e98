#include "folivar/file/XObject.h"

#include "folivar/base/Internal.h"

namespace folivar {

std::string NameOf(const XObject& object) {
  if (object.Key().IsEmpty()) return object.ResourceName(Internal());
  return "'" + object.Key().Utf8() + "'";
}

}  // namespace folivar
