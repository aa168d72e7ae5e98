#pragma once

#include "folivar/base/Warnings.h"

namespace folivar::hosts {

// Warnings to where the environment variable FOLIVAR_WARNINGS says, which is read for each: "log",
// to the file that FOLIVAR_WARNINGS_FILE names, "off", or else to standard error.
class EnvironmentWarnings final : public Warnings {
 public:
  void Show(const Text& message) override;
};

}  // namespace folivar::hosts
