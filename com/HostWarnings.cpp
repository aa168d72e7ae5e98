#include "com/HostWarnings.h"

#include <cstddef>
#include <mutex>
#include <string>

#include "com/ComPrefix.h"
#include "com/Variants.h"

namespace folivar::com {
namespace {

struct Callback {
  FolivarWarningCallback function = nullptr;
  void* context = nullptr;
};

std::mutex mutex;
Callback current;

Callback CurrentCallback() {
  const std::lock_guard lock(mutex);
  return current;
}

// Empty when it is not set.
std::wstring Variable(const wchar_t* name) {
  std::wstring value(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length =
        GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size()));
    const bool fits = length < value.size();
    value.resize(length);
    if (fits) return value;
  }
}

bool Append(const std::wstring& path, const Text& message) {
  HANDLE file = CreateFileW(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE,
                            nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  const std::string line = message.Utf8() + "\r\n";
  DWORD written = 0;
  const BOOL isWritten =
      WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
  CloseHandle(file);
  return isWritten != FALSE;
}

}  // namespace

void HostWarnings::Show(const Text& message) {
  const std::wstring text = WideFrom(message);
  if (const Callback callback = CurrentCallback(); callback.function != nullptr) {
    callback.function(text.c_str(), callback.context);
    return;
  }
  const std::wstring way = Variable(L"FOLIVAR_WARNINGS");
  if (way == L"off") return;
  if (way != L"log") {
    OfThisSystem()->Show(message);
  } else if (!Append(Variable(L"FOLIVAR_WARNINGS_FILE"), message)) {
    OutputDebugStringW((text + L'\n').c_str());
  }
}

void HostWarnings::SetCallback(FolivarWarningCallback callback, void* context) {
  const std::lock_guard lock(mutex);
  current = {callback, context};
}

}  // namespace folivar::com
