// Turns a CSV file of bank transactions into a PDF statement.

#include <folivar/folivar.h>

#include <algorithm>
#include <exception>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "PageSize.h"
#include "Statement.h"
#include "StatementLayout.h"
#include "common/InputText.h"
#include "common/Typeface.h"
#include "common/UsageError.h"

namespace {

constexpr std::string_view kUsage =
    "usage: statement [--page-size a4|letter|a5|legal] [--holder NAME]\n"
    "                 [--font NAME [--font-folder FOLDER]...] INPUT.csv OUTPUT.pdf";

void Warn(std::string_view notice) { std::cerr << "statement: " << notice << '\n'; }

struct Options {
  PageSize pageSize = kPageSizes.front();
  std::string holder = "Harbour Lane Bookbinders";
  std::string family;
  std::vector<std::string> fontFolders;
  std::string input;
  std::string output;
};

const PageSize& PageSizeNamed(std::string_view name) {
  const auto found = std::find_if(kPageSizes.begin(), kPageSizes.end(),
                                  [name](const PageSize& size) { return size.name == name; });
  if (found == kPageSizes.end()) {
    throw UsageError("there is no page size '" + std::string(name) + "'");
  }
  return *found;
}

Options ParseOptions(const std::vector<std::string>& arguments) {
  Options options;
  std::vector<std::string> files;
  for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
    const auto value = [&] {
      const std::string& name = *argument;
      if (++argument == arguments.end()) throw UsageError(name + " lacks its value");
      return *argument;
    };
    if (*argument == "--page-size") {
      options.pageSize = PageSizeNamed(value());
    } else if (*argument == "--holder") {
      options.holder = value();
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
  if (files.size() != 2) throw UsageError("an input and an output file are needed");
  options.input = files[0];
  options.output = files[1];
  return options;
}

bool IsPlain(const Statement& statement, const std::string& holder) {
  const auto& entries = statement.entries;
  return IsAscii(holder) && std::all_of(entries.begin(), entries.end(), [](const Entry& entry) {
           return IsAscii(entry.description);
         });
}

}  // namespace

int main(int argc, char** argv) {
  try {
    const Options options = ParseOptions({argv + 1, argv + argc});
    const Statement statement = ReadStatement(options.input);
    if (options.family.empty() && !IsPlain(statement, options.holder)) {
      Warn(StandardFaceNotice("Helvetica"));
    }
    const Typeface typeface = FindTypeface(options.family, options.fontFolders, Warn);
    LayOutStatement(statement, options.holder, options.pageSize, typeface)
        ->SavePDFFile(options.output);
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
