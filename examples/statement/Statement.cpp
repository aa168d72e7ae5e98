#include "Statement.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "common/CsvTable.h"
#include "common/InputError.h"
#include "common/InputText.h"

namespace {

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
  explicit StatementReader(const std::string& path)
      : path_(path), table_(path, {kColumnNames.begin(), kColumnNames.end()}) {}

  Statement Read() {
    bool isFirst = true;
    while (const auto record = table_.Next()) {
      ReadLine(*record, isFirst);
      isFirst = false;
    }
    return std::move(statement_);
  }

 private:
  enum Column { kDate, kDescription, kAmount, kColumnCount };
  static constexpr std::array<std::string_view, kColumnCount> kColumnNames = {"date", "description",
                                                                              "amount"};

  template <class Parse>
  auto Parsed(const CsvRecord& record, Column column, Parse parse) const {
    const std::string_view value = Trimmed(record.fields[column]);
    try {
      return parse(value);
    } catch (const std::invalid_argument& error) {
      throw InputError(path_, record.line,
                       Quoted(kColumnNames[column], value) + " " + error.what());
    }
  }

  void ReadLine(const CsvRecord& record, bool isFirst) {
    const Date date = Parsed(record, kDate, ParseDate);
    const Cents amount = Parsed(record, kAmount, ParseCents);
    std::string description = SingleLine(record.fields[kDescription]);

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
  CsvTable table_;
  Statement statement_;
};

}  // namespace

Statement ReadStatement(const std::string& path) { return StatementReader(path).Read(); }
