#pragma once

#include <folivar/folivar.h>

#include <memory>
#include <string>

// What a statement is set in.
struct Typeface {
  // A family of TrueType fonts, which is embedded. Empty: Helvetica, which a reader has of its own
  // and in which only ASCII is sure to come out right.
  std::string family;
  // Where the family is looked for before the system's fonts.
  std::shared_ptr<folivar::FontFiles> files = std::make_shared<folivar::FontFiles>();
};
