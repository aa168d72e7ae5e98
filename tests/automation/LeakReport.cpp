// What of the component is still in use when it is unloaded; linked into the Folivar.dll of the
// tests alone.

#include <array>
#include <string>

#include "com/ComPrefix.h"
#include "com/Module.h"

using folivar::com::Module;

namespace {

// Appends a line to the file that the environment variable FOLIVAR_LEAK_REPORT names, if any:
//   live=0 locks=0 process_exit=0
// With process_exit=1 the process ended while the DLL was loaded: somebody still held an object, or
// never let go of the library.
//
// Runs while the DLL is being unloaded: of the system it calls nothing but kernel32.
void ReportLeaks(bool isProcessExit) {
  std::array<wchar_t, 1024> path{};
  const DWORD length = GetEnvironmentVariableW(L"FOLIVAR_LEAK_REPORT", path.data(), path.size());
  if (length == 0 || length >= path.size()) return;
  HANDLE file = CreateFileW(path.data(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE,
                            nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return;
  const std::string line = "live=" + std::to_string(Module::Objects()) +
                           " locks=" + std::to_string(Module::Locks()) +
                           " process_exit=" + (isProcessExit ? "1" : "0") + "\n";
  DWORD written = 0;
  WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
  CloseHandle(file);
}

}  // namespace

// The linker puts the second in the place of the component's DllMain, which becomes the first.
extern "C" BOOL WINAPI __real_DllMain(HINSTANCE handle, DWORD reason, void* processEnds);
extern "C" BOOL WINAPI __wrap_DllMain(HINSTANCE handle, DWORD reason, void* processEnds) {
  const BOOL isReady = __real_DllMain(handle, reason, processEnds);
  if (reason == DLL_PROCESS_DETACH) ReportLeaks(processEnds != nullptr);
  return isReady;
}
