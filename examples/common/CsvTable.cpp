#include "common/CsvTable.h"

#include <algorithm>
#include <utility>

#include "common/InputError.h"
#include "common/InputText.h"

namespace {

// "date, description and amount"
std::string ListOf(const std::vector<std::string_view>& names) {
  std::string list;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (i > 0) list += i + 1 == names.size() ? " and " : ", ";
    list += names[i];
  }
  return list;
}

}  // namespace

CsvTable::CsvTable(const std::string& path, const std::vector<std::string_view>& columns)
    : path_(path), reader_(path) {
  const auto header = reader_.Next();
  if (!header) {
    throw InputError(path_, reader_.Line(),
                     "the file is empty where a header with " + ListOf(columns) + " is expected");
  }
  fieldCount_ = header->fields.size();
  for (const std::string_view column : columns) {
    const auto& fields = header->fields;
    const auto found = std::find_if(
        fields.begin(), fields.end(),
        [column](const std::string& field) { return LowerCase(Trimmed(field)) == column; });
    if (found == fields.end()) {
      throw InputError(path_, header->line,
                       "the header has no column '" + std::string(column) + "'");
    }
    places_.push_back(static_cast<std::size_t>(found - fields.begin()));
  }
}

std::optional<CsvRecord> CsvTable::Next() {
  const auto record = reader_.Next();
  if (!record) return std::nullopt;
  if (record->fields.size() != fieldCount_) {
    throw InputError(path_, record->line,
                     std::to_string(record->fields.size()) + " fields where the header has " +
                         std::to_string(fieldCount_));
  }
  CsvRecord row{record->line, {}};
  for (const std::size_t place : places_) row.fields.push_back(record->fields[place]);
  return row;
}
