#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/CsvReader.h"

// A CSV file whose first record, the header, names its columns: in any order, without regard to
// case or to blanks around them. Other columns than those wanted are ignored.
class CsvTable {
 public:
  // `columns` are the lower-case names of those wanted. Throws InputError for a file that cannot be
  // read and for a header that lacks a column.
  CsvTable(const std::string& path, const std::vector<std::string_view>& columns);

  // The next record with its fields in the order of the columns wanted, or nothing at the end.
  // Throws InputError, naming the line, for a record with more or fewer fields than the header has
  // and for what CsvReader refuses.
  std::optional<CsvRecord> Next();

  // The line that is read next.
  int Line() const { return reader_.Line(); }

 private:
  std::string path_;
  CsvReader reader_;
  std::size_t fieldCount_ = 0;
  std::vector<std::size_t> places_;  // of the columns wanted, in the order of the file
};
