// Turns a folder of pictures and a CSV file of captions into a PDF catalogue.

#include <folivar/folivar.h>

#include <algorithm>
#include <string>
#include <vector>

#include "CatalogueLayout.h"
#include "Picture.h"
#include "common/FontOptions.h"
#include "common/InputText.h"
#include "common/Program.h"
#include "common/Typeface.h"
#include "common/UsageError.h"

namespace {

constexpr Program kProgram = {
    "catalogue",
    "usage: catalogue [--title TITLE] [--house NAME]\n"
    "                 [--font NAME [--font-folder FOLDER]...] PICTURES CAPTIONS.csv OUTPUT.pdf\n"
    "PICTURES is a folder of JPEG and BMP files."};

bool IsPlain(const CatalogueNames& names, const std::vector<Picture>& pictures) {
  return IsAscii(names.title) && IsAscii(names.house) &&
         std::all_of(pictures.begin(), pictures.end(), [](const Picture& picture) {
           return IsAscii(picture.title) && IsAscii(picture.caption);
         });
}

void WriteCatalogue(const std::vector<std::string>& arguments) {
  CatalogueNames names = {"Table and Tide", "HARBOUR LANE PRINT ROOM"};
  FontOptions font;
  Options options = {{"--title", [&](const std::string& value) { names.title = value; }},
                     {"--house", [&](const std::string& value) { names.house = value; }}};
  font.AddTo(options);
  const auto files = ReadOptions(arguments, options);
  if (files.size() != 3) {
    throw UsageError("a folder of pictures, a file of captions and an output file are needed");
  }
  const Typeface typeface = FindTypeface(font, kProgram);
  const auto document = MakeDocument(typeface);
  const auto pictures = ReadPictures(files[1], files[0], *document);
  if (font.family.empty() && !IsPlain(names, pictures)) kProgram.Warn(StandardFaceNotice("Times"));
  LayOutCatalogue(*document, names, pictures, typeface);
  document->SavePDFFile(files[2]);
}

}  // namespace

int main(int argc, char** argv) {
  return kProgram.Run([&] { WriteCatalogue({argv + 1, argv + argc}); });
}
