#include "Money.h"

#include <cstddef>
#include <stdexcept>

Cents ParseCents(std::string_view text) {
  const bool isNegative = text.starts_with('-');
  if (isNegative || text.starts_with('+')) text.remove_prefix(1);

  const std::size_t point = text.find('.');
  const std::string_view whole = text.substr(0, point);
  const std::string_view decimals =
      point == std::string_view::npos ? std::string_view() : text.substr(point + 1);

  std::string digits(whole);
  digits += decimals;
  if (digits.empty() || digits.find_first_not_of("0123456789") != std::string::npos) {
    throw std::invalid_argument("is not a number");
  }
  if (decimals.size() > 2) throw std::invalid_argument("has more than two decimals");
  digits.append(2 - decimals.size(), '0');

  Cents cents = 0;
  for (char digit : digits) {
    cents = cents * 10 + (digit - '0');
    if (IsTooLarge(cents)) throw std::invalid_argument("is too large");
  }
  return isNegative ? -cents : cents;
}

std::string FormatCents(Cents amount) {
  std::string text = std::to_string(amount < 0 ? -amount : amount);
  if (text.size() < 3) text.insert(0, 3 - text.size(), '0');
  std::size_t place = text.size() - 2;
  text.insert(place, ".");
  while (place > 3) {
    place -= 3;
    text.insert(place, ",");
  }
  return amount < 0 ? "-" + text : text;
}
