#include "folivar/fonts/AfmReader.h"

#include <cstddef>
#include <cstdint>
#include <string>

#include "folivar/base/Error.h"

namespace folivar {
namespace {

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// Cuts `rest` at the first `separator` and returns what stood before it.
std::string_view TakeUpTo(std::string_view& rest, char separator) {
  const std::size_t end = rest.find(separator);
  const std::string_view piece = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  return piece;
}

// The part of a line or item at `index`, counted from 0, parted by single blanks.
std::string_view Token(std::string_view item, std::size_t index) {
  for (; index > 0; --index) TakeUpTo(item, ' ');
  return TakeUpTo(item, ' ');
}

bool IsDigit(char letter) { return letter >= '0' && letter <= '9'; }

// What follows the digits (a carriage return) does not matter, and neither do digits beyond the
// fifteenth, which metrics do not have; up to there the number is exact before it becomes a single.
float Number(std::string_view item, std::size_t index) {
  std::string_view token = Token(item, index);
  const bool isNegative = token.starts_with('-');
  if (isNegative) token.remove_prefix(1);
  constexpr std::int64_t kFull = 100'000'000'000'000;
  std::int64_t digits = 0;
  double scale = 1;
  bool isNumber = false;
  bool isFraction = false;
  for (const char letter : token) {
    if (letter == '.' && !isFraction) {
      isFraction = true;
    } else if (!IsDigit(letter)) {
      break;
    } else {
      isNumber = true;
      const bool counts = digits < kFull;
      if (counts) digits = 10 * digits + (letter - '0');
      if (counts && isFraction) scale *= 10;
      if (!counts && !isFraction) scale /= 10;
    }
  }
  if (!isNumber) {
    throw Error::TypeMismatch("font metrics: a number is wanted in '" + std::string(item) + "'");
  }
  const double value = static_cast<double>(digits) / scale;
  return static_cast<float>(isNegative ? -value : value);
}

// The line that begins with `key`; the file's first line when there is none.
std::string_view HeaderLine(std::string_view file, std::string_view key) {
  const std::size_t lineEnd = file.find("\n" + std::string(key));
  std::string_view rest = file.substr(lineEnd == std::string_view::npos ? 0 : lineEnd + 1);
  return Trimmed(TakeUpTo(rest, '\n'));
}

//   C 65 ; WX 667 ; N A ; B 14 0 654 718 ;
void ReadCharacter(std::string_view line, CharacterTable& characters) {
  CharacterMetrics* character = nullptr;
  while (!line.empty()) {
    const std::string_view item = Trimmed(TakeUpTo(line, ';'));
    const std::string_view key = Token(item, 0);
    if (key == "C") {
      const float code = Number(item, 1);
      if (code == -1) return;  // a glyph without a code
      if (!(code >= 0 && code < static_cast<float>(characters.size()))) {
        throw Error::SubscriptOutOfRange("font metrics: character code outside 0 to 255 in '" +
                                         std::string(item) + "'");
      }
      character = &characters[static_cast<std::size_t>(code)];
    } else if (character != nullptr && key == "WX") {
      character->width = Number(item, 1);
    } else if (character != nullptr && key == "B") {
      character->left = Number(item, 1);
      character->bottom = Number(item, 2);
      character->right = Number(item, 3);
      character->top = Number(item, 4);
    }
  }
}

// The lines between "StartCharMetrics" and "EndCharMetrics".
std::string_view CharacterLines(std::string_view file) {
  const std::size_t start = file.find("\nStartCharMetrics");
  if (start == std::string_view::npos) return {};
  std::string_view rest = file.substr(start + 1);
  TakeUpTo(rest, '\n');
  return rest.substr(0, rest.find("EndCharMetrics"));
}

}  // namespace

AfmMetrics ReadAfm(std::string_view file) {
  AfmMetrics metrics;
  metrics.capHeight = Number(HeaderLine(file, "CapHeight"), 1);
  metrics.ascender = Number(HeaderLine(file, "Ascender"), 1);
  metrics.descender = Number(HeaderLine(file, "Descender"), 1);
  const std::string_view box = HeaderLine(file, "FontBBox");
  metrics.box = {Number(box, 1), Number(box, 2), Number(box, 3), Number(box, 4)};
  metrics.underlinePosition = Number(HeaderLine(file, "UnderlinePosition"), 1);
  metrics.underlineThickness = Number(HeaderLine(file, "UnderlineThickness"), 1);
  std::string_view lines = CharacterLines(file);
  while (!lines.empty()) ReadCharacter(TakeUpTo(lines, '\n'), metrics.characters);
  return metrics;
}

}  // namespace folivar
