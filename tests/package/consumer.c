#include <folivar.h>

int main(int argc, char** argv) {
  folivar_PDFDocument* document;
  folivar_PDFPages* pages;
  folivar_PDFPage* page;
  if (argc != 2 || folivar_PDFDocument_new(NULL, &document) != 0 ||
      folivar_PDFDocument_Pages(document, &pages) != 0 ||
      folivar_PDFPages_Add(pages, "first", folivar_missing(), folivar_missing(), &page) != 0 ||
      folivar_PDFPage_DrawText(page, "Hello", 72, 700) != 0 ||
      folivar_PDFDocument_SavePDFFile(document, argv[1]) != 0) {
    return 1;
  }
  folivar_release(page);
  folivar_release(pages);
  folivar_release(document);
  return 0;
}
