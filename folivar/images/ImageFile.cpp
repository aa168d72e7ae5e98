#include "folivar/images/ImageFile.h"

#include "folivar/base/Error.h"

namespace folivar {

void ImageFile::ReadAgain(std::uint64_t offset, std::span<char> out) {
  if (Read(offset, out) == out.size()) return;
  throw Error::InputPastEnd("input past end: it has become shorter than " +
                            std::to_string(offset + out.size()) + " bytes")
      .WithObject(Name());
}

}  // namespace folivar
