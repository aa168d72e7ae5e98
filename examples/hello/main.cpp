#include <folivar/folivar.h>

int main(int argc, char** argv) {
  auto document = folivar::PDFDocument::Create();
  auto page = document->Pages()->Add();
  page->SetPageExtents(420, 240);  // points, of which 72 are an inch
  page->DrawText("Text, lines and rectangles, placed from the bottom left corner.", 40, 48);
  page->DrawLine(40, 72, 380, 72);
  page->GraphicsState()->SetFillColor(folivar::Rgb(31, 78, 95));
  page->DrawRect(0, 160, 420, 80, folivar::Paint::kFill);
  page->SetFont(document->Fonts()->Add("Helvetica-Bold"));
  page->Font()->SetSize(40);
  page->DrawText("Hello, page", 38, 96);
  document->SavePDFFile(argc > 1 ? argv[1] : "hello.pdf");
}
