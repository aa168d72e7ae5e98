// Apart from the rest of the facade, where the automation interface has no identifiers.

#include "Creation.h"

#include <ole2.h>

#include "folivar_h.h"

HRESULT CreateDocument(void** result) {
  return CoCreateInstance(__uuidof(PDFDocument), nullptr, CLSCTX_INPROC_SERVER,
                          __uuidof(_PDFDocument), result);
}
