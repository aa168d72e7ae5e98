// Shows TrueType fonts, a page for each family.

#include <folivar/folivar.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "Specimen.h"
#include "common/Program.h"
#include "common/UsageError.h"

namespace {

constexpr Program kProgram = {
    "specimen",
    "usage: specimen [--font-folder FOLDER]... OUTPUT.pdf [FAMILY]...\n"
    "Without a FAMILY all that are installed or in the folders are shown."};

void WriteSpecimen(const std::vector<std::string>& arguments) {
  std::vector<std::string> fontFolders;
  const auto names = ReadOptions(
      arguments,
      {{"--font-folder", [&](const std::string& value) { fontFolders.push_back(value); }}});
  if (names.empty()) throw UsageError("an output file is needed");

  const auto document = folivar::PDFDocument::Create();
  for (const std::string& folder : fontFolders) {
    // What is not a usable font is named and left out.
    for (const auto& refusal : document->FontFiles()->AddFolder(folder)) {
      kProgram.Warn(refusal.Utf8());
    }
  }
  std::vector<folivar::Text> families;
  for (auto family = names.begin() + 1; family != names.end(); ++family) {
    families.emplace_back(*family);
  }
  if (families.empty()) families = document->Fonts()->AvailableFonts(folivar::fontTrueType);
  if (families.empty()) throw std::runtime_error("specimen: there are no TrueType fonts to show");
  DrawSpecimen(*document, families);
  document->SavePDFFile(names.front());
}

}  // namespace

int main(int argc, char** argv) {
  return kProgram.Run([&] { WriteSpecimen({argv + 1, argv + argc}); });
}
