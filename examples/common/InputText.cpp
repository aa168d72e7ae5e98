#include "common/InputText.h"

#include <algorithm>
#include <cstddef>

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string LowerCase(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c += 'a' - 'A';
  }
  return lower;
}

std::string SingleLine(std::string_view text) {
  std::string line;
  for (char c : text) {
    const bool isBlank = (c >= '\0' && c <= ' ') || c == '\x7F';
    if (!isBlank) {
      line += c;
    } else if (!line.empty() && line.back() != ' ') {
      line += ' ';
    }
  }
  if (line.ends_with(' ')) line.pop_back();
  return line;
}

std::string Quoted(std::string_view name, std::string_view value) {
  constexpr std::size_t kLongest = 40;
  std::string quoted(value);
  if (quoted.size() > kLongest) {
    std::size_t end = kLongest;
    while ((quoted[end] & 0xC0) == 0x80) --end;  // never within a UTF-8 sequence
    quoted = quoted.substr(0, end) + "...";
  }
  return std::string(name) + " '" + quoted + "'";
}

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; });
}
