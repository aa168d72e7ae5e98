// Turns a CSV file of bank transactions into a PDF statement.

#include <folivar/folivar.h>

#include <algorithm>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "PageSize.h"
#include "Statement.h"
#include "StatementLayout.h"

namespace {

constexpr std::string_view kUsage =
    "usage: statement [--page-size a4|letter|a5|legal] [--holder NAME] INPUT.csv OUTPUT.pdf";

class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct Options {
  PageSize pageSize = kPageSizes.front();
  std::string holder = "Harbour Lane Bookbinders";
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
    } else if (argument->starts_with("--")) {
      throw UsageError("there is no option " + *argument);
    } else {
      files.push_back(*argument);
    }
  }
  if (files.size() != 2) throw UsageError("an input and an output file are needed");
  options.input = files[0];
  options.output = files[1];
  return options;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    const Options options = ParseOptions({argv + 1, argv + argc});
    const Statement statement = ReadStatement(options.input);
    LayOutStatement(statement, options.holder, options.pageSize)->SavePDFFile(options.output);
    return 0;
  } catch (const UsageError& error) {
    std::cerr << "statement: " << error.what() << '\n' << kUsage << '\n';
    return 2;
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
