#include "common/FontOptions.h"

#include "common/UsageError.h"

void FontOptions::AddTo(Options& options) {
  options["--font"] = [this](const std::string& value) { family = value; };
  options["--font-folder"] = [this](const std::string& value) { folders.push_back(value); };
}

Typeface FindTypeface(const FontOptions& options, const Program& program) {
  if (options.family.empty() && !options.folders.empty()) {
    throw UsageError("--font-folder is of no use without --font");
  }
  Typeface typeface{options.family};
  for (const std::string& folder : options.folders) {
    for (const folivar::Text& refusal : typeface.files->AddFolder(folder)) {
      program.Warn(refusal.Utf8());
    }
  }
  return typeface;
}
