#pragma once

#include <string>
#include <vector>

// The columns of a CSV file and its records, each with a text for every column.
struct Recipients {
  std::vector<std::string> columns;
  std::vector<std::vector<std::string>> records;
};

// Throws InputError, naming the line, for a file that cannot be read, has no header, or has a
// record with more or fewer fields.
Recipients ReadRecipients(const std::string& path);
