#include "com/Module.h"

#include <array>
#include <atomic>
#include <string>

namespace folivar::com {
namespace {

constinit HINSTANCE moduleHandle = nullptr;
constinit std::atomic<long> liveObjects = 0;
constinit std::atomic<long> madeObjects = 0;
constinit std::atomic<long> locks = 0;

}  // namespace

void Module::SetHandle(HINSTANCE module) { moduleHandle = module; }

HINSTANCE Module::Handle() { return moduleHandle; }

std::wstring Module::Path() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length =
        GetModuleFileNameW(moduleHandle, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(2 * path.size());
  }
}

void Module::CountObject(int change) {
  liveObjects += change;
  if (change > 0) ++madeObjects;
}

void Module::CountLock(int change) { locks += change; }

bool Module::IsIdle() { return liveObjects == 0 && locks == 0; }

// Runs while the DLL is being unloaded: of the system it calls nothing but kernel32.
void Module::ReportLeaks(bool isProcessExit) {
  std::array<wchar_t, 1024> path{};
  const DWORD length = GetEnvironmentVariableW(L"FOLIVAR_LEAK_REPORT", path.data(), path.size());
  if (length == 0 || length >= path.size()) return;
  HANDLE file = CreateFileW(path.data(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE,
                            nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return;
  const std::string line = "live=" + std::to_string(liveObjects) +
                           " locks=" + std::to_string(locks) +
                           " made=" + std::to_string(madeObjects) +
                           " process_exit=" + (isProcessExit ? "1" : "0") + "\n";
  DWORD written = 0;
  WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
  CloseHandle(file);
}

}  // namespace folivar::com
