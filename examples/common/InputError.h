#pragma once

#include <stdexcept>
#include <string>

// What is wrong with an input file. The text is one line whatever the file holds: control
// characters in it are shown as "?".
class InputError : public std::runtime_error {
 public:
  // "statement.csv: cannot be opened"
  InputError(const std::string& file, const std::string& problem)
      : std::runtime_error(OneLine(file + ": " + problem)) {}

  // "statement.csv:17: amount '12,x' is not a number"; lines count from 1.
  InputError(const std::string& file, int line, const std::string& problem)
      : InputError(file + ":" + std::to_string(line), problem) {}

 private:
  static std::string OneLine(std::string text) {
    for (char& c : text) {
      if (static_cast<unsigned char>(c) < ' ' || c == '\x7F') c = '?';
    }
    return text;
  }
};
