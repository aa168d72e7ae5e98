#include "Statement.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "CsvReader.h"
#include "InputError.h"

namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::size_t kLongestQuote = 40;

std::string_view Trimmed(std::string_view text) {
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

// Line breaks, tabs and other control characters become blanks, a run of blanks one.
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

// "amount '12,x'": the culprit in an error text, cut when it is long.
std::string Quoted(std::string_view name, std::string_view value) {
  std::string quoted(value);
  if (quoted.size() > kLongestQuote) {
    std::size_t end = kLongestQuote;
    while ((quoted[end] & 0xC0) == 0x80) --end;  // never within a UTF-8 sequence
    quoted = quoted.substr(0, end) + "...";
  }
  return std::string(name) + " '" + quoted + "'";
}

// `text` must be digits only.
template <class Number>
bool ParseDigits(std::string_view text, Number& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size();
}

Date ParseDate(std::string_view text) {
  unsigned year = 0;
  unsigned month = 0;
  unsigned day = 0;
  const bool isWellFormed = text.size() == 10 && text[4] == '-' && text[7] == '-' &&
                            ParseDigits(text.substr(0, 4), year) &&
                            ParseDigits(text.substr(5, 2), month) &&
                            ParseDigits(text.substr(8, 2), day);
  if (!isWellFormed) throw std::invalid_argument("is not of the form 2026-01-31");
  const Date date{std::chrono::year(static_cast<int>(year)), std::chrono::month(month),
                  std::chrono::day(day)};
  if (!date.ok()) throw std::invalid_argument("is not in the calendar");
  return date;
}

// Turns the records of one file into a statement.
class StatementReader {
 public:
  explicit StatementReader(const std::string& path) : path_(path), reader_(path) {}

  Statement Read() {
    ReadHeader();
    bool isFirst = true;
    while (const auto record = reader_.Next()) {
      ReadLine(*record, isFirst);
      isFirst = false;
    }
    return std::move(statement_);
  }

 private:
  enum Column { kDate, kDescription, kAmount, kColumnCount };
  static constexpr std::array<std::string_view, kColumnCount> kColumnNames = {"date", "description",
                                                                              "amount"};

  void ReadHeader() {
    const auto header = reader_.Next();
    if (!header) {
      throw InputError(path_, reader_.Line(),
                       "the file is empty where a header with date, description and amount "
                       "is expected");
    }
    fieldCount_ = header->fields.size();
    for (std::size_t column = 0; column < kColumnCount; ++column) {
      place_[column] = FindColumn(*header, kColumnNames[column]);
    }
  }

  std::size_t FindColumn(const CsvRecord& header, std::string_view name) const {
    const auto isNamed = [name](const std::string& field) {
      return LowerCase(Trimmed(field)) == name;
    };
    const auto& fields = header.fields;
    const auto found = std::find_if(fields.begin(), fields.end(), isNamed);
    if (found == fields.end()) {
      throw InputError(path_, header.line, "the header has no column '" + std::string(name) + "'");
    }
    return static_cast<std::size_t>(found - fields.begin());
  }

  template <class Parse>
  auto Parsed(const CsvRecord& record, Column column, Parse parse) const {
    const std::string_view value = Trimmed(record.fields[place_[column]]);
    try {
      return parse(value);
    } catch (const std::invalid_argument& error) {
      throw InputError(path_, record.line,
                       Quoted(kColumnNames[column], value) + " " + error.what());
    }
  }

  void ReadLine(const CsvRecord& record, bool isFirst) {
    if (record.fields.size() != fieldCount_) {
      throw InputError(path_, record.line,
                       std::to_string(record.fields.size()) + " fields where the header has " +
                           std::to_string(fieldCount_));
    }
    const Date date = Parsed(record, kDate, ParseDate);
    const Cents amount = Parsed(record, kAmount, ParseCents);
    std::string description = SingleLine(record.fields[place_[kDescription]]);

    ExtendPeriod(date);
    if (isFirst && LowerCase(description) == "opening balance") {
      statement_.openingBalance = amount;
      return;
    }
    (amount < 0 ? statement_.moneyOut : statement_.moneyIn) += amount;
    const Cents balance = statement_.ClosingBalance();
    if (IsTooLarge(statement_.moneyIn) || IsTooLarge(statement_.moneyOut) || IsTooLarge(balance)) {
      throw InputError(path_, record.line,
                       "the amounts up to here sum up to more than " + FormatCents(kLargestAmount));
    }
    statement_.entries.push_back({date, std::move(description), amount, balance});
  }

  void ExtendPeriod(Date date) {
    auto& period = statement_.period;
    if (!period) period = Period{date, date};
    period->first = std::min(period->first, date);
    period->last = std::max(period->last, date);
  }

  std::string path_;
  CsvReader reader_;
  std::size_t fieldCount_ = 0;
  std::array<std::size_t, kColumnCount> place_{};
  Statement statement_;
};

}  // namespace

Statement ReadStatement(const std::string& path) { return StatementReader(path).Read(); }
