#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "Money.h"

using Date = std::chrono::year_month_day;

// One line of the account.
struct Entry {
  Date date;
  std::string description;  // UTF-8, a single line
  Cents amount;
  Cents balance;  // of the account, after this entry
};

// The first and the last day of anything.
struct Period {
  Date first;
  Date last;
};

// What happened on an account, in the order of the input.
struct Statement {
  std::optional<Period> period;  // none without any dated line
  Cents openingBalance = 0;
  Cents moneyIn = 0;
  Cents moneyOut = 0;  // 0 or negative
  std::vector<Entry> entries;

  Cents ClosingBalance() const { return openingBalance + moneyIn + moneyOut; }
};

// Reads a CSV file whose header names the columns date (2026-01-31), description and amount, in any
// order; further columns are ignored. A first line that is described as "Opening balance" gives the
// opening balance and is no entry; without one it is 0. Throws InputError, naming the line.
Statement ReadStatement(const std::string& path);
