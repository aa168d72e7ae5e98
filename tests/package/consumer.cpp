#include <folivar/folivar.h>

// Calls what lives in templates too: a shared library must export all that they need.
int main(int, char** argv) {
  auto document = folivar::PDFDocument::Create();
  document->Pages()->Add("first")->DrawText("Hello", 72, 700);
  document->Pages()->Add("second", 1)->SetTag("moved");
  document->Pages()->ReOrder("second");
  for (const auto& page : *document->Pages())
    page->SetFont(document->Fonts()->Item(1, folivar::fontType1));
  if (document->Pages()->Item("first") != document->Pages()->Item(1)) return 1;
  document->SavePDFFile(document->Pages()->KeyExists("SECOND") ? argv[1] : "");
}
