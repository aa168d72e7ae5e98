#pragma once

#include <string>
#include <vector>

#include "common/Program.h"
#include "common/Typeface.h"

// What --font and --font-folder say.
struct FontOptions {
  std::string family;  // empty: none
  std::vector<std::string> folders;

  void AddTo(Options& options);
};

// Throws UsageError for folders without a family. What is no usable font in the folders is named in
// a warning and left out.
Typeface FindTypeface(const FontOptions& options, const Program& program);
