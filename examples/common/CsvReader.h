#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

struct CsvRecord {
  int line;  // where it starts in the file, from 1
  std::vector<std::string> fields;
};

// Reads a comma-separated file in UTF-8, with or without a byte order mark, record by record. Lines
// end with LF, CR LF or CR; empty lines are skipped. A field in double quotes may hold commas, line
// breaks and doubled quotes.
class CsvReader {
 public:
  // Throws InputError for a file that cannot be read.
  explicit CsvReader(const std::string& path);

  // The next record, or nothing at the end of the file. Throws InputError, naming the line, for a
  // quote that is misplaced or never closed and for text that is not UTF-8.
  std::optional<CsvRecord> Next();

  // The line that is read next.
  int Line() const { return line_; }

 private:
  bool AtEnd() const { return position_ == content_.size(); }
  bool AtLineEnd() const;
  void SkipLineEnd();
  CsvRecord ReadRecord();
  std::string ReadField();
  std::string ReadQuotedField();
  std::string ReadPlainField();

  std::string path_;
  std::string content_;
  std::size_t position_ = 0;
  int line_ = 1;
};
