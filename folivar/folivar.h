#pragma once

// Everything a host needs: build a document from objects, write it with one call.
//
//   auto document = folivar::PDFDocument::Create();
//   auto page = document->Pages()->Add();
//   page->DrawText("Hello", 72, 720);
//   document->SavePDFFile("hello.pdf");
//
// Lengths and coordinates are points (1/72 inch) from the bottom left corner of the page.
// Failures are thrown as folivar::Error. Objects are used by one thread at a time; documents on
// different threads do not disturb each other.
//
// On Windows: windows.h makes DrawText a macro, which these headers take away again. Where
// windows.h comes after them, "#undef DrawText" does; its own functions are DrawTextA and
// DrawTextW.

#include "folivar/base/Api.h"

#ifndef FOLIVAR_NEEDS_A_NEWER_STANDARD

#include "folivar/base/Error.h"
#include "folivar/base/Event.h"
#include "folivar/base/Text.h"
#include "folivar/base/Value.h"
#include "folivar/base/Warnings.h"
#include "folivar/document/PDFDocument.h"
#include "folivar/document/PDFPages.h"
#include "folivar/document/PDFViewerPreferences.h"
#include "folivar/document/Platform.h"
#include "folivar/drawing/Color.h"
#include "folivar/fonts/FontFiles.h"
#include "folivar/fonts/PDFFont.h"
#include "folivar/fonts/PDFFonts.h"
#include "folivar/fonts/SystemFonts.h"
#include "folivar/images/PDFImage.h"
#include "folivar/images/PDFImages.h"
#include "folivar/navigation/EscapeTitle.h"
#include "folivar/navigation/PDFBookmark.h"
#include "folivar/navigation/PDFBookmarks.h"
#include "folivar/navigation/PDFHyperLink.h"
#include "folivar/navigation/PDFHyperLinks.h"
#include "folivar/navigation/PDFLinkDestination.h"
#include "folivar/page/PDFGraphicsState.h"
#include "folivar/page/PDFPage.h"
#include "folivar/page/PDFTemplate.h"
#include "folivar/page/PDFTemplates.h"
#include "folivar/textbox/PDFTextBox.h"
#include "folivar/textbox/PDFTextBoxes.h"

#endif
