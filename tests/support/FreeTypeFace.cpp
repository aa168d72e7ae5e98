#include "tests/support/FreeTypeFace.h"

#include <ft2build.h>
#include <iconv.h>

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <utility>

#include FT_FREETYPE_H
#include FT_ADVANCES_H
#include FT_PARAMETER_TAGS_H
#include FT_TRUETYPE_TABLES_H

namespace folivar::test {
namespace {

void Expect(FT_Error error, const char* what) {
  if (error) throw std::runtime_error(std::string("FreeType: ") + what);
}

// The character behind each byte of the code page.
std::array<std::uint32_t, 256> Windows1252() {
  std::array<std::uint32_t, 256> characters = {};
  const iconv_t converter = iconv_open("UCS-4LE", "CP1252");
  if (converter == reinterpret_cast<iconv_t>(-1)) throw std::runtime_error("iconv lacks CP1252");
  for (std::uint32_t code = 0; code < characters.size(); ++code) {
    char byte = static_cast<char>(code);
    char* in = &byte;
    std::size_t inLeft = 1;
    std::array<unsigned char, 4> bytes = {};
    char* out = reinterpret_cast<char*>(bytes.data());
    std::size_t outLeft = bytes.size();
    const bool isFree =
        iconv(converter, &in, &inLeft, &out, &outLeft) == static_cast<std::size_t>(-1);
    iconv(converter, nullptr, nullptr, nullptr, nullptr);
    characters[code] = isFree ? code : bytes[0] | static_cast<std::uint32_t>(bytes[1]) << 8;
  }
  iconv_close(converter);
  return characters;
}

}  // namespace

struct FreeTypeFace::Face {
  explicit Face(std::string fileBytes) : bytes(std::move(fileBytes)) {
    Expect(FT_Init_FreeType(&library), "does not start");
  }
  ~Face() { FT_Done_FreeType(library); }
  Face(const Face&) = delete;
  Face& operator=(const Face&) = delete;

  // Scaled to a character height of 1000 pixels, then rounded to whole ones.
  int InThousandths(FT_Long units) const {
    return static_cast<int>((FT_MulFix(units, face->size->metrics.x_scale) + 32) >> 6);
  }

  const TT_OS2& OS2() const {
    const void* table = FT_Get_Sfnt_Table(face, FT_SFNT_OS2);
    if (!table) throw std::runtime_error("FreeType: there is no table OS/2");
    return *static_cast<const TT_OS2*>(table);
  }

  std::string bytes;
  FT_Library library = nullptr;
  FT_Face face = nullptr;
};

FreeTypeFace::FreeTypeFace(std::string bytes, int index)
    : face_(std::make_shared<Face>(std::move(bytes))) {
  FT_Parameter parameter = {FT_PARAM_TAG_IGNORE_TYPOGRAPHIC_FAMILY, nullptr};
  FT_Open_Args arguments = {};
  arguments.flags = FT_OPEN_MEMORY | FT_OPEN_PARAMS;
  arguments.memory_base = reinterpret_cast<const FT_Byte*>(face_->bytes.data());
  arguments.memory_size = static_cast<FT_Long>(face_->bytes.size());
  arguments.num_params = 1;
  arguments.params = &parameter;
  Expect(FT_Open_Face(face_->library, &arguments, index, &face_->face), "refuses the font");
  Expect(FT_Set_Pixel_Sizes(face_->face, 0, 1000), "refuses the size");
}

std::string FreeTypeFace::Family() const { return face_->face->family_name; }

bool FreeTypeFace::IsBold() const { return (face_->face->style_flags & FT_STYLE_FLAG_BOLD) != 0; }

bool FreeTypeFace::IsItalic() const {
  return (face_->face->style_flags & FT_STYLE_FLAG_ITALIC) != 0;
}

std::array<int, 4> FreeTypeFace::Box() const {
  const FT_BBox& box = face_->face->bbox;
  return {static_cast<int>(box.xMin), static_cast<int>(box.yMin), static_cast<int>(box.xMax),
          static_cast<int>(box.yMax)};
}

int FreeTypeFace::UnitsPerEm() const { return face_->face->units_per_EM; }

int FreeTypeFace::Ascent() const { return face_->InThousandths(face_->OS2().usWinAscent); }

int FreeTypeFace::Descent() const { return face_->InThousandths(face_->OS2().usWinDescent); }

std::array<int, 256> FreeTypeFace::Widths() const {
  FT_Face face = face_->face;
  const bool hasUnicode = FT_Select_Charmap(face, FT_ENCODING_UNICODE) == 0;
  if (!hasUnicode) Expect(FT_Select_Charmap(face, FT_ENCODING_MS_SYMBOL), "finds no map");
  static const std::array<std::uint32_t, 256> characters = Windows1252();

  std::array<int, 256> widths = {};
  for (std::uint32_t code = 0; code < widths.size(); ++code) {
    FT_UInt glyph = FT_Get_Char_Index(face, hasUnicode ? characters[code] : 0xF000 + code);
    if (!hasUnicode && glyph == 0) glyph = FT_Get_Char_Index(face, code);
    FT_Fixed advance = 0;
    Expect(FT_Get_Advance(face, glyph, FT_LOAD_NO_SCALE, &advance), "has no advance");
    widths[code] = face_->InThousandths(advance);
  }
  return widths;
}

}  // namespace folivar::test
