#include "common/InputText.h"

#include <folivar/folivar.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <fstream>
#include <sstream>
#include <system_error>
#include <utility>

#include "common/InputError.h"

std::string ReadInputFile(const std::string& path) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  errno = 0;
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    throw InputError(path, "cannot be opened: " + std::generic_category().message(errno));
  }
  std::ostringstream content;
  const bool isEmpty = file.peek() == std::ifstream::traits_type::eof();
  if (!isEmpty) content << file.rdbuf();
  if (file.bad() || !content) throw InputError(path, "cannot be read");
  std::string text = std::move(content).str();
  if (text.starts_with(kByteOrderMark)) text.erase(0, kByteOrderMark.size());
  return text;
}

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

bool IsUtf8(std::string_view text) {
  try {
    folivar::Text checked(text);
    return true;
  } catch (const folivar::Error&) {
    return false;
  }
}
