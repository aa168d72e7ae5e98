#include "com/Module.h"

#include <atomic>
#include <string>

namespace folivar::com {
namespace {

constinit HINSTANCE moduleHandle = nullptr;
constinit std::atomic<long> objects = 0;
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

void Module::CountObject(int change) { objects += change; }

void Module::CountLock(int change) { locks += change; }

long Module::Objects() { return objects; }

long Module::Locks() { return locks; }

}  // namespace folivar::com
