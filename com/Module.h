#pragma once

#include <string>

#include "com/ComPrefix.h"

namespace folivar::com {

// The DLL itself: where it is, and what of it is still in use. One for the process; from any
// thread.
class Module {
 public:
  static void SetHandle(HINSTANCE module);
  static HINSTANCE Handle();
  // Of the file that it was loaded from.
  static std::wstring Path();

  // Objects that clients may hold, and references to the class factory with its locks.
  static void CountObject(int change);
  static void CountLock(int change);
  static long Objects();
  static long Locks();
};

}  // namespace folivar::com
