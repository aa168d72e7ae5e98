#pragma once

#include <memory>

#include "com/FolivarWarnings.h"
#include "folivar/base/Warnings.h"

namespace folivar::com {

// The warnings of documents made through automation. They go to the callback of
// FolivarSetWarningCallback or, without one, where the environment variable FOLIVAR_WARNINGS says,
// which is read for each warning:
//   box  to a message box, or where none can be shown to the debugger's output and to standard
//        error; the default
//   log  to the file that FOLIVAR_WARNINGS_FILE names, a line each in UTF-8; without such a file
//        to the debugger's output
//   off  nowhere
class HostWarnings final : public Warnings {
 public:
  void Show(const Text& message) override;

  static void SetCallback(FolivarWarningCallback callback, void* context);
};

}  // namespace folivar::com
