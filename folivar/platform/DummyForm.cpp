#include "folivar/platform/DummyForm.h"

#define NOMINMAX
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace folivar {

// A window for messages only needs no desktop, so services have one too.
DummyForm::DummyForm()
    : window_(CreateWindowExA(0, "STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr,
                              nullptr)),
      deviceContext_(window_ ? GetDC(window_) : nullptr) {
  if (deviceContext_) return;
  if (window_) DestroyWindow(window_);
  window_ = nullptr;
  deviceContext_ = CreateCompatibleDC(nullptr);
}

DummyForm::~DummyForm() {
  if (window_) {
    ReleaseDC(window_, deviceContext_);
    DestroyWindow(window_);
  } else if (deviceContext_) {
    DeleteDC(deviceContext_);
  }
}

}  // namespace folivar
