// Turns a CSV file of bank transactions into a PDF statement.

#include <folivar/folivar.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "PageSize.h"
#include "Statement.h"
#include "StatementLayout.h"
#include "common/FontOptions.h"
#include "common/InputText.h"
#include "common/Program.h"
#include "common/Typeface.h"
#include "common/UsageError.h"

namespace {

constexpr Program kProgram = {
    "statement",
    "usage: statement [--page-size a4|letter|a5|legal] [--holder NAME]\n"
    "                 [--font NAME [--font-folder FOLDER]...] INPUT.csv OUTPUT.pdf"};

const PageSize& PageSizeNamed(std::string_view name) {
  const auto found = std::find_if(kPageSizes.begin(), kPageSizes.end(),
                                  [name](const PageSize& size) { return size.name == name; });
  if (found == kPageSizes.end()) {
    throw UsageError("there is no page size '" + std::string(name) + "'");
  }
  return *found;
}

bool IsPlain(const Statement& statement, const std::string& holder) {
  const auto& entries = statement.entries;
  return IsAscii(holder) && std::all_of(entries.begin(), entries.end(), [](const Entry& entry) {
           return IsAscii(entry.description);
         });
}

void WriteStatement(const std::vector<std::string>& arguments) {
  PageSize pageSize = kPageSizes.front();
  std::string holder = "Harbour Lane Bookbinders";
  FontOptions font;
  Options options = {
      {"--page-size", [&](const std::string& value) { pageSize = PageSizeNamed(value); }},
      {"--holder", [&](const std::string& value) { holder = value; }}};
  font.AddTo(options);
  const auto files = ReadOptions(arguments, options);
  if (files.size() != 2) throw UsageError("an input and an output file are needed");
  const Typeface typeface = FindTypeface(font, kProgram);
  const Statement statement = ReadStatement(files[0]);
  if (font.family.empty() && !IsPlain(statement, holder)) {
    kProgram.Warn(StandardFaceNotice("Helvetica"));
  }
  LayOutStatement(statement, holder, pageSize, typeface)->SavePDFFile(files[1]);
}

}  // namespace

int main(int argc, char** argv) {
  return kProgram.Run([&] { WriteStatement({argv + 1, argv + argc}); });
}
