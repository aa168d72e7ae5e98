#include "tests/support/KeyedModel.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>

#include "folivar/base/Error.h"

namespace folivar::test {
namespace {

using Kind = Argument::Kind;

// Letters beyond ASCII that the keys use.
struct Letter {
  const char* large;
  const char* small;
};
constexpr std::array<Letter, 4> kLetters = {
    {{"\u00C9", "\u00E9"}, {"\u03A9", "\u03C9"}, {"\u0416", "\u0436"}, {"\u0141", "\u0142"}}};

std::string Lower(std::string text) {
  for (char& byte : text) {
    if (byte >= 'A' && byte <= 'Z') byte = static_cast<char>(byte - 'A' + 'a');
  }
  for (const Letter& letter : kLetters) {
    const std::string large = letter.large;
    for (std::size_t at = text.find(large); at != text.npos; at = text.find(large, at)) {
      text.replace(at, large.size(), letter.small);
    }
  }
  return text;
}

std::string KeyOf(std::size_t number, Random& random) {
  const bool isLarge = random.Chance(50);
  const Letter& letter = kLetters[number % kLetters.size()];
  return (isLarge ? "KEY" : "kEy") + std::string(random.Chance(50) ? letter.large : letter.small) +
         std::to_string(number);
}

}  // namespace

Value Argument::AsValue() const {
  switch (kind) {
    case Kind::kMissing:
      return {};
    case Kind::kWhole:
      return static_cast<std::int64_t>(number);
    case Kind::kReal:
      return number;
    case Kind::kText:
      return text;
    case Kind::kFlag:
      return number != 0;
    case Kind::kNull:
      return Value::Null();
    case Kind::kEmpty:
      return Value::Empty();
  }
  return {};
}

int KeyedModel::Find(const Argument& index, std::size_t& place) const {
  if (index.kind == Kind::kText) {
    const std::string key = Lower(index.text);
    for (place = 0; place < entries_.size(); ++place) {
      if (!key.empty() && entries_[place].key == key) return 0;
    }
    return Error::kInvalidArgument;
  }
  if (index.kind == Kind::kNull) return Error::kInvalidNull;
  if (index.kind != Kind::kWhole && index.kind != Kind::kReal) return Error::kTypeMismatch;
  const double number = std::nearbyint(index.number);  // halves to even
  if (!(number >= -2147483648.0 && number <= 2147483647.0)) return Error::kOverflow;
  if (number < 1 || number > static_cast<double>(entries_.size()))
    return Error::kSubscriptOutOfRange;
  place = static_cast<std::size_t>(number) - 1;
  return 0;
}

int KeyedModel::Add(int item, const std::string& key, const Argument& before,
                    const Argument& after) {
  const bool hasBefore = before.kind != Kind::kMissing;
  const bool hasAfter = after.kind != Kind::kMissing;
  if (hasBefore && hasAfter) return Error::kInvalidArgument;
  std::size_t place = 0;
  if (Find({Kind::kText, 0, key}, place) == 0) return Error::kKeyInUse;
  place = entries_.size();
  if (hasBefore) {
    if (const int error = Find(before, place)) return error;
  }
  if (hasAfter) {
    if (const int error = Find(after, place)) return error;
    ++place;
  }
  entries_.insert(entries_.begin() + static_cast<std::ptrdiff_t>(place), {item, Lower(key)});
  return 0;
}

int KeyedModel::Remove(const Argument& index) {
  std::size_t place = 0;
  if (const int error = Find(index, place)) return error;
  entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(place));
  return 0;
}

void KeyedModel::ReOrder(const std::string& key, const Argument& before, const Argument& after) {
  const Argument name{Kind::kText, 0, key};
  int item = 0;
  if (Item(name, item) != 0) return;
  Remove(name);
  const bool hasBefore = before.kind != Kind::kMissing;
  Add(item, key, before, hasBefore ? Argument() : after);  // when this fails the item is gone
}

int KeyedModel::Item(const Argument& index, int& item) const {
  std::size_t place = 0;
  const int error = Find(index, place);
  if (error == 0) item = entries_[place].item;
  return error;
}

Argument KeyedModel::RandomIndex(Random& random) const {
  const auto position = static_cast<double>(random.Below(entries_.size() + 1));
  if (random.Chance(50)) return {Kind::kWhole, position + (random.Chance(90) ? 1 : 0), ""};
  if (random.Chance(70)) return {Kind::kText, 0, RandomKey(random)};
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  switch (random.Below(12)) {
    case 0:
      return {Kind::kReal, position + 0.5, ""};
    case 1:
      return {Kind::kReal, position + 0.25, ""};
    case 2:
      return {Kind::kReal, position + 0.75, ""};
    case 3:
      return {Kind::kWhole, -position, ""};
    case 4:
      return {Kind::kWhole, position + 2147483647.0, ""};
    case 5:
      return {Kind::kReal, random.Chance(50) ? kInfinity : -3e9, ""};
    case 6:
      return {Kind::kReal, std::numeric_limits<double>::quiet_NaN(), ""};
    case 7:
      return {Kind::kText, 0, std::to_string(position)};
    case 8:
      return {Kind::kFlag, 1, ""};
    case 9:
      return {Kind::kNull, 0, ""};
    case 10:
      return {Kind::kEmpty, 0, ""};
    default:
      return {Kind::kText, 0, ""};
  }
}

void KeyedModel::RandomPlaces(Random& random, Argument& before, Argument& after) const {
  const std::size_t choice = random.Below(20);
  if (choice < 10) before = RandomIndex(random);
  if (choice >= 9 && choice < 18) after = RandomIndex(random);
}

std::string KeyedModel::RandomKey(Random& random) const {
  if (random.Chance(15)) return "";
  if (!entries_.empty() && random.Chance(40)) {
    const std::string& key = entries_[random.Below(entries_.size())].key;
    // "kéy17" and the like: the digits tell the rest.
    const std::size_t digits = key.find_first_of("0123456789");
    if (digits != key.npos) return KeyOf(std::stoul(key.substr(digits)), random);
  }
  return KeyOf(random.Below(6000), random);
}

}  // namespace folivar::test
