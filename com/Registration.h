#pragma once

#include "com/ComPrefix.h"

namespace folivar::com {

// What the registry says of the component: class, program identifier, type library, and for each
// interface how calls between threads are carried over (by the system, along the type library).
enum class RegistrationScope { kMachine, kUser };

class Registration {
 public:
  // Raise what the registry fails with. A registration that fails leaves everything as it was.
  static void Register(RegistrationScope scope);
  // Leaves no key. What is not there is no failure. The registrations of the other word size and of
  // other versions stay whole.
  static void Unregister(RegistrationScope scope);
};

}  // namespace folivar::com
