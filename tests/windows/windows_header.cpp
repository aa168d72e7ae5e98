// Draws a text, in a program that includes windows.h.
//
//   windows_header <file.pdf>

// clang-format off
#ifdef WINDOWS_FIRST
#include <windows.h>
#include <folivar/folivar.h>
#else
#include <folivar/folivar.h>
#include <windows.h>
#undef DrawText
#endif
// clang-format on

int main(int, char** argv) {
  const auto document = folivar::PDFDocument::Create();
  const auto page = document->Pages()->Add();
  page->DrawText("Hello from Windows", 72, 720);
  const auto drawn = document->Templates()->Add();
  drawn->DrawText("Hello from a template", 0, 0);
  document->SavePDFFile(argv[1]);
  // The system's function is still there under its own name.
  HDC device = CreateCompatibleDC(nullptr);
  RECT place{};
  const int height = DrawTextW(device, L"x", 1, &place, DT_CALCRECT);
  DeleteDC(device);
  return height > 0 ? 0 : 1;
}
