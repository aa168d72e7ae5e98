#include "folivar/file/ObjectNumbers.h"

#include <limits>

#include "folivar/base/Error.h"

namespace folivar {

Reference ObjectNumbers::Take() {
  if (next_ == std::numeric_limits<std::int32_t>::max()) {
    throw Error::Overflow("the document has more objects than 32 bits can number");
  }
  return Reference(next_++);
}

}  // namespace folivar
