#pragma once

#include <string>
#include <vector>

namespace folivar::test {

// A library in the place of fontconfig's (libfontconfig.so.1), whose memory runs out when a test
// wants it. What it has: fonts in files, with a name each.
struct FakeFontconfig {
  struct Font {
    std::string fileName;
    std::string family;
  };

  std::vector<Font> fonts;
  // How many more questions are answered; below 0, all. Then it says that it has no memory.
  int answersLeft = -1;
  // What it was handed although there was none; the real one ends the process then.
  int nullsSeen = 0;
  // What it has given and not been given back.
  int objectsLeft = 0;
};

// The name of the library's function that returns its FakeFontconfig&.
inline constexpr const char* kFakeFontconfig = "FolivarFakeFontconfig";
using FakeFontconfigFunction = FakeFontconfig& (*)();

}  // namespace folivar::test
