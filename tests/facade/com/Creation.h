#pragma once

#include <windows.h>

// Makes a document; `result` gets its interface _PDFDocument.
HRESULT CreateDocument(void** result);
