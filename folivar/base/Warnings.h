#pragma once

#include <functional>
#include <memory>

#include "folivar/base/Api.h"
#include "folivar/base/Text.h"

namespace folivar {

// Port: where a document's warnings go (a font that was replaced by another, say). A warning is
// never an error; the call that gives it goes on.
class FOLIVAR_API Warnings {
 public:
  virtual ~Warnings();
  Warnings(const Warnings&) = delete;
  Warnings& operator=(const Warnings&) = delete;

  virtual void Show(const Text& message) = 0;

  // The default. On Linux to standard error, a line each. On Windows in a message box, which waits
  // for the user; where none can be shown (no desktop, a service) to the debugger's output and to
  // standard error, without waiting.
  static std::shared_ptr<Warnings> OfThisSystem();
  // To standard error, a line each.
  static std::shared_ptr<Warnings> ToStandardError();
  // To a function of the host's. What it throws reaches the caller of the member that warned, which
  // then has changed nothing. Raises 91 for an empty function.
  static std::shared_ptr<Warnings> To(std::function<void(const Text& message)> show);

 protected:
  Warnings() = default;
};

}  // namespace folivar
