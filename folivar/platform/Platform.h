#pragma once

#include <memory>

#include "folivar/platform/Warnings.h"

namespace folivar {

// What a document asks of the system it runs on. Handed over when the document is made; a port left
// null is the system's own.
struct Platform {
  std::shared_ptr<Warnings> warnings;  // null: standard error
};

}  // namespace folivar
