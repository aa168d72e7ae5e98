#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "folivar/base/Text.h"
#include "folivar/file/ByteSource.h"
#include "folivar/fonts/CharacterMap.h"
#include "folivar/fonts/FontTableFields.h"
#include "folivar/fonts/SystemFonts.h"

namespace folivar {

// One font of a font file and what its tables say. No number in the file is trusted: a font whose
// tables reach beyond the file or contradict themselves raises 321, which names the file. A table
// that is missing reads as zeros.
class TrueTypeFontTables {
 public:
  // How many fonts the file holds: 1, or those of a collection. More than 65535 are refused: the
  // systems' own numbers for them go no further.
  static std::uint32_t FontCount(ByteSource& file, const std::string& fileName);

  // The font at a place, from 0. The file must outlive this object. `fileName` is for error texts.
  TrueTypeFontTables(ByteSource& file, std::string fileName, std::uint32_t index);

  // Whether its outlines are TrueType's own ("glyf") and not PostScript's ("CFF ").
  bool HasTrueTypeOutlines() const;
  bool HasPostScriptOutlines() const;

  // The bytes that the font cannot share with others of a collection: the list of its tables, and
  // its names.
  std::uint64_t OwnSize() const;

  // The name of the family of at most four styles that the face belongs to; in English when the
  // font has it. Empty when none of its names can be read; raises 321 for a damaged table.
  Text FamilyName() const;

  bool IsBold() const { return isBold_; }
  bool IsItalic() const { return isItalic_; }

  // The classes of weight and width by their numbers in table "OS/2": 400 and 5 are normal, 700 is
  // bold. A font that does not tell is normal, or bold if it says so.
  std::uint16_t Weight() const;
  std::uint16_t Width() const;

  // Copies the first bytes of a table; those that it does not have are left as they are.
  void ReadTable(std::string_view tag, std::span<unsigned char> out) const;

  // At a character height of 1000 units, as the system's device contexts give it.
  SystemFace::TextMetrics Metrics() const;

  // The advance widths of the codes of Windows code page 1252, in thousandths of the em; those of
  // a symbol font's own codes for a symbol font. A code without a glyph has the width of glyph 0.
  std::array<std::int32_t, 256> Widths() const;

  // The bytes of the font as a file of its own: the file's, or the tables of one font of a
  // collection put together. More than 1 GiB raises 6, before anything is read.
  std::string Program() const;

 private:
  using Bytes = std::vector<unsigned char>;

  struct Table {
    std::uint32_t tag;
    std::uint32_t offset;
    std::uint32_t length;
  };

  struct MapPlace {
    int rank;              // the better one is the larger; tells whose codes the map goes by
    std::uint32_t offset;  // in table "cmap"
  };

  struct RankedMap {
    int rank = 0;  // none
    CharacterMap characters{};
  };

  // The parts of the constructor, in their order.
  std::uint64_t StartOfFont(std::uint32_t index);
  void ListTables(std::uint64_t start);
  void CheckSizeOfTables() const;
  void CheckNeededTables() const;
  void ReadEmAndStyle();

  std::uint64_t SizeOfTables() const;
  const Table* Find(std::string_view tag) const;
  bool IsInFile(const Table& table) const;
  Bytes Read(const Table& table, std::uint32_t offset, std::uint32_t limit) const;
  Bytes Read(std::string_view tag, std::uint32_t limit) const;
  std::vector<MapPlace> ListCharacterMaps() const;
  bool HasSymbols() const;
  RankedMap FindCharacterMap() const;
  bool HasGlyphs(const RankedMap& map) const;
  // 0 for none.
  std::uint32_t GlyphOfCode(const RankedMap& map, unsigned char code) const;
  std::int32_t InThousandths(std::int32_t units) const;
  std::string ProgramOfCollectionMember() const;
  [[noreturn]] void Refuse(std::string_view what) const;

  ByteSource& file_;
  std::string fileName_;
  bool isInCollection_ = false;
  std::uint32_t version_ = 0;
  std::vector<Table> tables_;
  OS2Table os2_;
  std::uint16_t unitsPerEm_ = 0;
  bool isBold_ = false;
  bool isItalic_ = false;
};

}  // namespace folivar
