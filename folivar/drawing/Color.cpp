#include "folivar/drawing/Color.h"

#include <string>

#include "folivar/base/Error.h"
#include "folivar/base/Numbers.h"

namespace folivar {

void RaiseNoColorShare(int share) {
  throw Error::InvalidArgument("a share of " + std::to_string(share) +
                               " in a colour is not from 0 to 255")
      .WithMember("Rgb");
}

std::int32_t Gray(double level) {
  const auto single = static_cast<float>(level);
  if (!(single >= 0 && single <= 1)) {
    throw Error::InvalidArgument("a gray level of " + DigitsOf(level) + " is not from 0 to 1")
        .WithMember("Gray");
  }
  const auto share = static_cast<int>(RoundHalfToEven(double{single} * 255));
  return Rgb(share, share, share);
}

}  // namespace folivar
