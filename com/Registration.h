#pragma once

#include "com/ComPrefix.h"

namespace folivar::com {

// What the registry says of the component: class, program identifier, type library, and for each
// interface how calls between threads are carried over (by the system, along the type library).
enum class RegistrationScope { kMachine, kUser };

class Registration {
 public:
  // Raise what the registry fails with.
  static void Register(RegistrationScope scope);
  // Leaves no key. What is not there is no failure. The other word size's registration stays whole.
  static void Unregister(RegistrationScope scope);
};

}  // namespace folivar::com
