#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

// A program as it meets whoever runs it.
struct Program {
  std::string_view name;
  std::string_view usage;

  // "catalogue: a notice" on standard error.
  void Warn(std::string_view notice) const;

  // Does the program's work and returns the exit code: 2 for a UsageError, which is shown with the
  // usage, and 1 for any other exception, whose text is shown.
  int Run(const std::function<void()>& work) const;
};

// What becomes of the values of options, by the options' names: "--title".
using Options = std::map<std::string_view, std::function<void(const std::string& value)>>;

// Hands the value behind each option on and returns the other arguments. Throws UsageError for an
// option that is not listed or lacks its value.
std::vector<std::string> ReadOptions(const std::vector<std::string>& arguments,
                                     const Options& options);
