#pragma once

#include <string>
#include <string_view>

// Text as input files have it; all of it is UTF-8.

// The whole file, without a byte order mark at its front; not checked. Throws InputError for a file
// that cannot be read.
std::string ReadInputFile(const std::string& path);

// Without the blanks and tabs at both ends.
std::string_view Trimmed(std::string_view text);

// Of the letters A to Z; others stay as they are.
std::string LowerCase(std::string_view text);

// Line breaks, tabs and other control characters become blanks, a run of blanks one; none are left
// at the ends.
std::string SingleLine(std::string_view text);

// "amount '12,x'": the culprit in an error text, cut when it is long.
std::string Quoted(std::string_view name, std::string_view value);

bool IsAscii(std::string_view text);

bool IsUtf8(std::string_view text);
