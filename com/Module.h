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

  // Objects that clients may hold, and locks of the class factory.
  static void CountObject(int change);
  static void CountLock(int change);
  // Whether there are none of either.
  static bool IsIdle();

  // Appends a line to the file that the environment variable FOLIVAR_LEAK_REPORT names, if any:
  //   live=0 locks=0 made=12 process_exit=0
  // With process_exit=1 the process ended while the DLL was loaded: somebody still held an object,
  // or never let go of the library.
  static void ReportLeaks(bool isProcessExit);
};

}  // namespace folivar::com
