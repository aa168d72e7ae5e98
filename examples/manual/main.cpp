// Sets a plain-text manual as a book.

#include <folivar/folivar.h>

#include <algorithm>
#include <string>
#include <vector>

#include "Book.h"
#include "Manual.h"
#include "ManualReader.h"
#include "common/FontOptions.h"
#include "common/InputText.h"
#include "common/Program.h"
#include "common/Typeface.h"
#include "common/UsageError.h"

namespace {

constexpr Program kProgram = {
    "manual", "usage: manual [--font NAME [--font-folder FOLDER]...] MANUAL.txt OUTPUT.pdf"};

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

void WriteManual(const std::vector<std::string>& arguments) {
  FontOptions font;
  Options options;
  font.AddTo(options);
  const auto files = ReadOptions(arguments, options);
  if (files.size() != 2) throw UsageError("a manual and an output file are needed");
  const Typeface typeface = FindTypeface(font, kProgram);
  const Manual manual = ReadManual(files[0]);
  if (font.family.empty() && !IsPlain(manual)) kProgram.Warn(StandardFaceNotice("Times"));
  const auto document = MakeDocument(typeface);
  LayOutBook(*document, manual, typeface);
  document->SavePDFFile(files[1]);
}

}  // namespace

int main(int argc, char** argv) {
  return kProgram.Run([&] { WriteManual({argv + 1, argv + argc}); });
}
