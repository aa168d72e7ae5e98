// Turns a folder of pictures and a CSV file of captions into a PDF catalogue.

#include <folivar/folivar.h>

#include <algorithm>
#include <exception>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "CatalogueLayout.h"
#include "Picture.h"
#include "common/InputText.h"
#include "common/Typeface.h"
#include "common/UsageError.h"

namespace {

constexpr std::string_view kUsage =
    "usage: catalogue [--title TITLE] [--house NAME]\n"
    "                 [--font NAME [--font-folder FOLDER]...] PICTURES CAPTIONS.csv OUTPUT.pdf\n"
    "PICTURES is a folder of JPEG and BMP files.";

void Warn(std::string_view notice) { std::cerr << "catalogue: " << notice << '\n'; }

struct Options {
  CatalogueNames names = {"Table and Tide", "HARBOUR LANE PRINT ROOM"};
  std::string family;
  std::vector<std::string> fontFolders;
  std::string pictures;
  std::string captions;
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
    if (*argument == "--title") {
      options.names.title = value();
    } else if (*argument == "--house") {
      options.names.house = value();
    } else if (*argument == "--font") {
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
  if (files.size() != 3) {
    throw UsageError("a folder of pictures, a file of captions and an output file are needed");
  }
  options.pictures = files[0];
  options.captions = files[1];
  options.output = files[2];
  return options;
}

bool IsPlain(const CatalogueNames& names, const std::vector<Picture>& pictures) {
  return IsAscii(names.title) && IsAscii(names.house) &&
         std::all_of(pictures.begin(), pictures.end(), [](const Picture& picture) {
           return IsAscii(picture.title) && IsAscii(picture.caption);
         });
}

void WriteCatalogue(const Options& options) {
  const Typeface typeface = FindTypeface(options.family, options.fontFolders, Warn);
  const auto document = MakeDocument(typeface);
  const auto pictures = ReadPictures(options.captions, options.pictures, *document);
  if (options.family.empty() && !IsPlain(options.names, pictures)) {
    Warn(StandardFaceNotice("Times"));
  }
  LayOutCatalogue(*document, options.names, pictures, typeface);
  document->SavePDFFile(options.output);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    WriteCatalogue(ParseOptions({argv + 1, argv + argc}));
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
