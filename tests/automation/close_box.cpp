// Waits for a message box, says what it shows, and presses its button.

#include <windows.h>

#include <cstdio>

namespace {

constexpr int kText = 0xFFFF;
constexpr int kTries = 300;

void Say(const char* what, HWND window) {
  wchar_t text[256] = {};
  SendMessageW(window, WM_GETTEXT, 256, reinterpret_cast<LPARAM>(text));
  std::printf("%s: %ls\n", what, text);
}

}  // namespace

int main() {
  for (int i = 0; i < kTries; ++i) {
    const HWND box = FindWindowW(L"#32770", nullptr);
    const HWND button = box != nullptr ? GetDlgItem(box, IDOK) : nullptr;
    if (button != nullptr && IsWindowVisible(box) != FALSE) {
      Say("caption", box);
      Say("text", GetDlgItem(box, kText));
      Say("button", button);
      std::printf("other button: %s\n", GetDlgItem(box, IDCANCEL) == nullptr ? "none" : "Cancel");
      PostMessageW(box, WM_COMMAND, IDOK, 0);
      return 0;
    }
    Sleep(100);
  }
  std::puts("there was no message box");
  return 1;
}
