#include "common/Program.h"

#include <exception>
#include <iostream>

#include "common/UsageError.h"

void Program::Warn(std::string_view notice) const { std::cerr << name << ": " << notice << '\n'; }

int Program::Run(const std::function<void()>& work) const {
  try {
    work();
    return 0;
  } catch (const UsageError& error) {
    Warn(error.what());
    std::cerr << usage << '\n';
    return 2;
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}

std::vector<std::string> ReadOptions(const std::vector<std::string>& arguments,
                                     const Options& options) {
  std::vector<std::string> others;
  for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
    if (!argument->starts_with("--")) {
      others.push_back(*argument);
      continue;
    }
    const std::string& name = *argument;
    const auto option = options.find(name);
    if (option == options.end()) throw UsageError("there is no option " + name);
    if (++argument == arguments.end()) throw UsageError(name + " lacks its value");
    option->second(*argument);
  }
  return others;
}
