// Gives one warning, to where warnings go on this system.

#include <folivar/folivar.h>

int main() { folivar::PDFDocument::Create()->Fonts()->Add("Nonesuch"); }
