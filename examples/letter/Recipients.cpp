#include "Recipients.h"

#include <utility>

#include "common/CsvReader.h"
#include "common/InputError.h"

Recipients ReadRecipients(const std::string& path) {
  CsvReader reader(path);
  Recipients recipients;
  auto header = reader.Next();
  if (!header) throw InputError(path, 1, "the file is empty where a header is expected");
  recipients.columns = std::move(header->fields);
  while (auto record = reader.Next()) {
    if (record->fields.size() != recipients.columns.size()) {
      throw InputError(path, record->line,
                       std::to_string(record->fields.size()) + " fields where the header has " +
                           std::to_string(recipients.columns.size()));
    }
    recipients.records.push_back(std::move(record->fields));
  }
  return recipients;
}
