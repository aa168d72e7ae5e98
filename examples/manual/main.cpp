// Sets a plain-text manual as a book.

#include <folivar/folivar.h>

#include <algorithm>
#include <exception>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "Book.h"
#include "Manual.h"
#include "ManualReader.h"
#include "common/InputText.h"
#include "common/Typeface.h"
#include "common/UsageError.h"

namespace {

constexpr std::string_view kUsage =
    "usage: manual [--font NAME [--font-folder FOLDER]...] MANUAL.txt OUTPUT.pdf";

void Warn(std::string_view notice) { std::cerr << "manual: " << notice << '\n'; }

struct Options {
  std::string family;
  std::vector<std::string> fontFolders;
  std::string input;
  std::string output;
};

Options ParseOptions(const std::vector<std::string>& arguments) {
  Options options;
  std::vector<std::string> files;
  for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
    const auto value = [&] {
      const std::string& name = *argument;
      if (++argument == arguments.end()) throw UsageError(name + " lacks its value");
      return *argument;
    };
    if (*argument == "--font") {
      options.family = value();
    } else if (*argument == "--font-folder") {
      options.fontFolders.push_back(value());
    } else if (argument->starts_with("--")) {
      throw UsageError("there is no option " + *argument);
    } else {
      files.push_back(*argument);
    }
  }
  if (options.family.empty() && !options.fontFolders.empty()) {
    throw UsageError("--font-folder is of no use without --font");
  }
  if (files.size() != 2) throw UsageError("a manual and an output file are needed");
  options.input = files[0];
  options.output = files[1];
  return options;
}

bool IsPlain(const Block& block) {
  return std::all_of(block.spans.begin(), block.spans.end(),
                     [](const Span& span) { return IsAscii(span.text); });
}

// All but code, which no option sets in another font.
bool IsPlain(const Manual& manual) {
  return IsAscii(manual.title) &&
         std::all_of(manual.titleLines.begin(), manual.titleLines.end(), IsAscii) &&
         std::all_of(manual.headings.begin(), manual.headings.end(),
                     [](const Heading& heading) { return IsAscii(heading.title); }) &&
         std::all_of(manual.blocks.begin(), manual.blocks.end(),
                     [](const Block& block) { return IsPlain(block); });
}

void WriteManual(const Options& options) {
  const Manual manual = ReadManual(options.input);
  if (options.family.empty() && !IsPlain(manual)) Warn(StandardFaceNotice("Times"));
  const Typeface typeface = FindTypeface(options.family, options.fontFolders, Warn);
  const auto document = MakeDocument(typeface);
  LayOutBook(*document, manual, typeface);
  document->SavePDFFile(options.output);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    WriteManual(ParseOptions({argv + 1, argv + argc}));
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
