#include <folivar/folivar.h>

int main(int, char** argv) {
  auto document = folivar::PDFDocument::Create();
  auto page = document->Pages()->Add();
  page->DrawText("Hello", 72, 700);
  document->SavePDFFile(argv[1]);
}
