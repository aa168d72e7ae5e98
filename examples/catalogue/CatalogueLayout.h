#pragma once

#include <folivar/folivar.h>

#include <string>
#include <vector>

#include "Picture.h"
#include "common/Typeface.h"

// What stands on the cover and at the head of every page; UTF-8.
struct CatalogueNames {
  std::string title;
  std::string house;  // that publishes it
};

// Adds the pages of a catalogue to the document that its pictures are in, of which there is at
// least one: a cover with the first picture, then four pictures to a page.
void LayOutCatalogue(folivar::PDFDocument& document, const CatalogueNames& names,
                     const std::vector<Picture>& pictures, const Typeface& typeface);
