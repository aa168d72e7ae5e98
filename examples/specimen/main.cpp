// Shows TrueType fonts, a page for each family.

#include <folivar/folivar.h>

#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Specimen.h"
#include "common/UsageError.h"

namespace {

constexpr std::string_view kUsage =
    "usage: specimen [--font-folder FOLDER]... OUTPUT.pdf [FAMILY]...\n"
    "Without a FAMILY all that are installed or in the folders are shown.";

void Warn(std::string_view notice) { std::cerr << "specimen: " << notice << '\n'; }

struct Options {
  std::vector<std::string> fontFolders;
  std::string output;
  std::vector<folivar::Text> families;
};

Options ParseOptions(const std::vector<std::string>& arguments) {
  Options options;
  for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
    if (*argument == "--font-folder") {
      if (++argument == arguments.end()) throw UsageError("--font-folder lacks its value");
      options.fontFolders.push_back(*argument);
    } else if (argument->starts_with("--")) {
      throw UsageError("there is no option " + *argument);
    } else if (options.output.empty()) {
      options.output = *argument;
    } else {
      options.families.emplace_back(*argument);
    }
  }
  if (options.output.empty()) throw UsageError("an output file is needed");
  return options;
}

void WriteSpecimen(const Options& options) {
  const auto document = folivar::PDFDocument::Create();
  for (const std::string& folder : options.fontFolders) {
    // What is not a usable font is named and left out.
    for (const auto& refusal : document->FontFiles()->AddFolder(folder)) Warn(refusal.Utf8());
  }
  auto families = options.families;
  if (families.empty()) families = document->Fonts()->AvailableFonts(folivar::fontTrueType);
  if (families.empty()) throw std::runtime_error("specimen: there are no TrueType fonts to show");
  DrawSpecimen(*document, families);
  document->SavePDFFile(options.output);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    WriteSpecimen(ParseOptions({argv + 1, argv + argc}));
    return 0;
  } catch (const UsageError& error) {
    Warn(error.what());
    std::cerr << kUsage << '\n';
    return 2;
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
