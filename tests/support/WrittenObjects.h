#pragma once

#include <string>

#include "folivar/fonts/FaceWriter.h"

namespace folivar::test {

// The objects of a writer that is the only one of its file, numbered from 1, as they stand in it.
std::string WrittenObjects(FaceWriter& writer);

}  // namespace folivar::test
