// Where a document's warnings go on Windows.

#define NOMINMAX
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <memory>
#include <string>

#include "folivar/base/Warnings.h"

namespace folivar {
namespace {

// Whether the user sees the windows of this process; of a service's nobody does, and a box would
// wait for ever.
bool HasVisibleDesktop() {
  USEROBJECTFLAGS flags = {};
  return GetUserObjectInformationW(GetProcessWindowStation(), UOI_FLAGS, &flags, sizeof flags,
                                   nullptr) != 0 &&
         (flags.dwFlags & WSF_VISIBLE) != 0;
}

class MessageBoxWarnings final : public Warnings {
 public:
  void Show(const Text& message) override {
    const std::wstring text(message.Utf16().begin(), message.Utf16().end());
    if (HasVisibleDesktop() &&
        MessageBoxW(nullptr, text.c_str(), L"Folivar", MB_OK | MB_TASKMODAL) > 0) {
      return;
    }
    OutputDebugStringW((text + L'\n').c_str());
    standardError_->Show(message);
  }

 private:
  std::shared_ptr<Warnings> standardError_ = ToStandardError();
};

}  // namespace

std::shared_ptr<Warnings> Warnings::OfThisSystem() {
  return std::make_shared<MessageBoxWarnings>();
}

}  // namespace folivar
