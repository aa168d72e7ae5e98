#include "common/CsvReader.h"

#include <utility>

#include "common/InputError.h"
#include "common/InputText.h"

CsvReader::CsvReader(const std::string& path) : path_(path), content_(ReadInputFile(path)) {}

std::optional<CsvRecord> CsvReader::Next() {
  while (!AtEnd() && AtLineEnd()) SkipLineEnd();
  if (AtEnd()) return std::nullopt;
  return ReadRecord();
}

bool CsvReader::AtLineEnd() const {
  return AtEnd() || content_[position_] == '\n' || content_[position_] == '\r';
}

void CsvReader::SkipLineEnd() {
  if (AtEnd()) return;
  position_ += content_.compare(position_, 2, "\r\n") == 0 ? 2U : 1U;
  ++line_;
}

CsvRecord CsvReader::ReadRecord() {
  CsvRecord record{line_, {ReadField()}};
  while (!AtLineEnd()) {
    ++position_;  // the comma
    record.fields.push_back(ReadField());
  }
  SkipLineEnd();
  for (const std::string& field : record.fields) {
    if (!IsUtf8(field)) throw InputError(path_, record.line, "the text is not UTF-8");
  }
  return record;
}

// Both kinds of field end at a comma or at the end of the line.
std::string CsvReader::ReadField() {
  return !AtEnd() && content_[position_] == '"' ? ReadQuotedField() : ReadPlainField();
}

std::string CsvReader::ReadQuotedField() {
  const int firstLine = line_;
  std::string field;
  ++position_;
  while (true) {
    if (AtEnd()) throw InputError(path_, firstLine, "a quoted field is never closed");
    if (content_[position_] == '"') {
      ++position_;
      if (AtLineEnd() || content_[position_] == ',') return field;
      if (content_[position_] != '"') {
        throw InputError(path_, line_, "text follows the closing quote of a field");
      }
      field += '"';
      ++position_;
    } else if (AtLineEnd()) {
      field += '\n';
      SkipLineEnd();
    } else {
      field += content_[position_++];
    }
  }
}

std::string CsvReader::ReadPlainField() {
  const std::size_t start = position_;
  while (!AtLineEnd() && content_[position_] != ',') {
    if (content_[position_] == '"') {
      throw InputError(path_, line_, "a quote in a field that does not start with one");
    }
    ++position_;
  }
  return content_.substr(start, position_ - start);
}
