#pragma once

// What windows.h calls HWND and HDC point to these; its macros stay out of headers.
struct HWND__;
struct HDC__;

namespace folivar {

// A hidden window that lends its device context to what is measured. Where the system gives no
// window, the context is one in memory. To be used, and let go, on one thread.
class DummyForm {
 public:
  DummyForm();
  ~DummyForm();
  DummyForm(const DummyForm&) = delete;
  DummyForm& operator=(const DummyForm&) = delete;

  // Null when the system has none left to give. Belongs to the form.
  HDC__* DeviceContext() const { return deviceContext_; }

 private:
  HWND__* window_;
  HDC__* deviceContext_;
};

}  // namespace folivar
