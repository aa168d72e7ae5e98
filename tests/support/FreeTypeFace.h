#pragma once

#include <array>
#include <memory>
#include <string>

namespace folivar::test {

// A face of a font file as FreeType understands it: the judge of our own reader.
class FreeTypeFace {
 public:
  // Throws std::runtime_error for a file that FreeType refuses.
  explicit FreeTypeFace(std::string bytes, int index = 0);

  // The family of at most four styles, not that of a larger number.
  std::string Family() const;
  bool IsBold() const;
  bool IsItalic() const;

  // Left, bottom, right and top of the box around all glyphs, in the font's units.
  std::array<int, 4> Box() const;
  int UnitsPerEm() const;

  // Measures are those at a character height of 1000 pixels without hints, rounded to whole ones.

  // Of the table "OS/2" for Windows.
  int Ascent() const;
  int Descent() const;

  // The advance widths of the characters of Windows code page 1252 (as iconv knows it; a byte that
  // it leaves free is the character of the same number), or of the codes of a font that has a map
  // for symbols only.
  std::array<int, 256> Widths() const;

 private:
  struct Face;
  std::shared_ptr<Face> face_;
};

}  // namespace folivar::test
