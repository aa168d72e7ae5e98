#pragma once

#include <folivar/folivar.h>

#include <memory>
#include <string>
#include <string_view>

// What a document is set in.
struct Typeface {
  // A family of TrueType fonts, which is embedded. Empty: standard faces, which a reader has of its
  // own and in which only ASCII is sure to come out right.
  std::string family;
  // Where the family is looked for before the system's fonts.
  std::shared_ptr<folivar::FontFiles> files = std::make_shared<folivar::FontFiles>();
};

// "there are characters beyond ASCII, which Helvetica shows wrongly or not at all; ..."
std::string StandardFaceNotice(std::string_view standardFace);

// A document that finds the typeface's fonts.
std::shared_ptr<folivar::PDFDocument> MakeDocument(const Typeface& typeface);

// The upright face: the family's, or without a family this standard one.
std::shared_ptr<folivar::PDFFont> AddUpright(folivar::PDFDocument& document,
                                             const Typeface& typeface,
                                             std::string_view standardFace);
