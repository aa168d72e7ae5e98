#pragma once

#include <optional>

namespace folivar {

// Macintosh Roman, the code of names and character maps that fonts have for the Macintosh.

char16_t MacRomanCharacter(unsigned char code);

// Nothing for a character that it does not have.
std::optional<unsigned char> MacRomanCode(char16_t character);

}  // namespace folivar
