#include "folivar/fonts/TrueTypeFontTables.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <utility>

#include "folivar/base/AnsiText.h"
#include "folivar/base/BigEndian.h"
#include "folivar/base/Error.h"
#include "folivar/file/FileHandle.h"
#include "folivar/fonts/FontFileWriter.h"

namespace folivar {
namespace {

using Bytes = std::vector<unsigned char>;

constexpr std::uint32_t kCollection = TagOf("ttcf");
constexpr std::uint32_t kVersion1 = 0x00010000;
constexpr std::uint32_t kVersionApple = TagOf("true");
constexpr std::uint32_t kVersionPostScript = TagOf("OTTO");

constexpr std::size_t kCollectionHeader = 12;  // tag, version, count; then an offset for each font

// Without these tables, and as many bytes of them, nobody can draw the font. (No glyph needs to
// have an outline.)
struct NeededTable {
  std::string_view tag;
  std::size_t size;
};
constexpr auto kNeededTables = std::to_array<NeededTable>({
    {"cmap", 4},
    {"glyf", 0},
    {HeadTable::kTag, HeadTable::kSize},
    {HheaTable::kTag, HheaTable::kSize},
    {"hmtx", 4},
    {"loca", 4},
    {MaxpTable::kTag, MaxpTable::kSize},
});

[[noreturn]] void RefuseFile(const std::string& name, std::string_view what) {
  throw Error::InvalidFileFormat("damaged font: " + std::string(what)).WithObject(FileNamed(name));
}

// Bytes of the file that have to be there.
Bytes ReadBytes(ByteSource& file, const std::string& name, std::uint64_t offset, std::size_t size) {
  // Before memory is asked for on the word of the file.
  if (offset > file.Size() || size > file.Size() - offset) RefuseFile(name, "it is cut short");
  Bytes bytes(size);
  if (file.Read(offset, {reinterpret_cast<char*>(bytes.data()), size}) != size) {
    RefuseFile(name, "it is cut short");
  }
  return bytes;
}

// The glyph of a character, 0 for none, in the formats that fonts for Windows use. Where a map ends
// early, so do its characters.
std::uint32_t GlyphInSegments(const Bytes& map, std::uint32_t character) {
  // Format 4: segment count * 2 at 6; from 14 on the segments' ends, two bytes, then their starts,
  // deltas, and offsets into the glyphs.
  if (map.size() < 16 || character > 0xFFFF) return 0;
  const std::size_t column = U16At(map, 6) & 0xFFFEU;
  const std::size_t starts = 14 + column + 2;
  if (starts + 3 * column > map.size()) return 0;
  for (std::size_t segment = 0; segment < column; segment += 2) {
    if (U16At(map, 14 + segment) < character) continue;
    const std::uint32_t start = U16At(map, starts + segment);
    if (start > character) return 0;
    const std::uint32_t delta = U16At(map, starts + column + segment);
    const std::size_t place = starts + 2 * column + segment;
    const std::size_t offset = U16At(map, place);
    if (offset == 0) return (character + delta) & 0xFFFF;
    const std::size_t glyph = place + offset + 2 * (character - start);
    if (glyph + 2 > map.size() || U16At(map, glyph) == 0) return 0;
    return (U16At(map, glyph) + delta) & 0xFFFF;
  }
  return 0;
}

std::uint32_t GlyphInArray(const Bytes& map, std::uint32_t character) {
  // Format 6: the first character at 6, their number at 8, a glyph for each from 10 on.
  if (map.size() < 10) return 0;
  const std::uint32_t first = U16At(map, 6);
  if (character < first || character - first >= U16At(map, 8)) return 0;
  const std::size_t glyph = 10 + 2 * std::size_t{character - first};
  return glyph + 2 <= map.size() ? U16At(map, glyph) : 0;
}

std::uint32_t GlyphInGroups(const Bytes& map, std::uint32_t character) {
  // Format 12: the number of groups at 12; from 16 on their first and last character and the glyph
  // of the first.
  constexpr std::size_t kGroup = 12;
  if (map.size() < 16) return 0;
  std::size_t begin = 0;
  std::size_t end = std::min<std::size_t>(U32At(map, 12), (map.size() - 16) / kGroup);
  while (begin < end) {
    const std::size_t middle = begin + (end - begin) / 2;
    const std::size_t group = 16 + kGroup * middle;
    if (character < U32At(map, group)) {
      end = middle;
    } else if (character > U32At(map, group + 4)) {
      begin = middle + 1;
    } else {
      return U32At(map, group + 8) + (character - U32At(map, group));
    }
  }
  return 0;
}

std::uint32_t GlyphInBytes(const Bytes& map, std::uint32_t character) {
  // Format 0: a glyph, one byte, for each of 256 codes from 6 on.
  return character < 256 && 6 + character < map.size() ? map[6 + character] : 0;
}

std::uint32_t GlyphOf(const Bytes& map, std::uint32_t character) {
  if (map.size() < 2) return 0;
  switch (U16At(map, 0)) {
    case 0:
      return GlyphInBytes(map, character);
    case 4:
      return GlyphInSegments(map, character);
    case 6:
      return GlyphInArray(map, character);
    case 12:
      return GlyphInGroups(map, character);
    default:
      return 0;
  }
}

// The better one is the larger: all of Unicode, then its basic plane, then a symbol font's own
// codes, then Macintosh's. 0 for the others.
constexpr int kMacintoshRank = 1;
constexpr int kSymbolRank = 2;
constexpr int kBestRank = 7;
int RankOfMap(std::uint16_t platform, std::uint16_t encoding) {
  constexpr std::uint16_t kUnicode = 0;
  constexpr std::uint16_t kMacintosh = 1;
  constexpr std::uint16_t kWindows = 3;
  if (platform == kWindows && encoding == 10) return 6;
  if (platform == kUnicode && (encoding == 4 || encoding == 6)) return 5;
  if (platform == kWindows && encoding == 1) return 4;
  if (platform == kUnicode && encoding != 5) return 3;  // 5 is for variants of characters
  if (platform == kWindows && encoding == 0) return kSymbolRank;
  if (platform == kMacintosh && encoding == 0) return kMacintoshRank;
  return 0;
}

// English Windows names before others of Windows, those before Unicode's and Macintosh's.
int RankOfName(std::uint16_t platform, std::uint16_t encoding, std::uint16_t language) {
  constexpr std::uint16_t kEnglish = 0x0409;
  if (platform == 3) return language == kEnglish ? 4 : 3;
  if (platform == 0) return 2;
  return platform == 1 && encoding == 0 ? 1 : 0;
}

std::u16string NameIn(std::span<const unsigned char> bytes, bool isMacintosh) {
  std::u16string name;
  if (isMacintosh) {
    // The two agree on ASCII, which is all that names have in practice.
    for (const unsigned char byte : bytes) name += byte < 0x80 ? char16_t{byte} : u'?';
    return name;
  }
  for (std::size_t i = 0; i + 2 <= bytes.size(); i += 2) name += char16_t{U16At(bytes, i)};
  return name;
}

}  // namespace

std::uint32_t TrueTypeFontTables::FontCount(ByteSource& file, const std::string& fileName) {
  const Bytes start = ReadBytes(file, fileName, 0, kCollectionHeader);
  if (U32At(start, 0) != kCollection) return 1;
  const std::uint32_t count = U32At(start, 8);
  if (count > (file.Size() - kCollectionHeader) / 4) RefuseFile(fileName, "it is cut short");
  return count;
}

TrueTypeFontTables::TrueTypeFontTables(ByteSource& file, std::string fileName, std::uint32_t index)
    : file_(file), fileName_(std::move(fileName)) {
  ListTables(StartOfFont(index));
  CheckSizeOfTables();
  if (HasTrueTypeOutlines()) CheckNeededTables();
  ReadEmAndStyle();
}

std::uint64_t TrueTypeFontTables::StartOfFont(std::uint32_t index) {
  if (index >= FontCount(file_, fileName_)) Refuse("it has no font " + std::to_string(index));
  const auto numberAt = [this](std::uint64_t offset) {
    return U32At(ReadBytes(file_, fileName_, offset, 4), 0);
  };
  isInCollection_ = numberAt(0) == kCollection;
  return isInCollection_ ? numberAt(kCollectionHeader + 4 * std::uint64_t{index}) : 0;
}

void TrueTypeFontTables::ListTables(std::uint64_t start) {
  const Bytes header = ReadBytes(file_, fileName_, start, kFontHeader);
  version_ = U32At(header, 0);
  if (version_ != kVersion1 && version_ != kVersionApple && version_ != kVersionPostScript) {
    Refuse("it does not begin like a font");
  }
  const std::size_t count = U16At(header, 4);
  const Bytes records = ReadBytes(file_, fileName_, start + kFontHeader, count * kTableRecord);
  tables_.reserve(count);
  for (std::size_t record = 0; record < records.size(); record += kTableRecord) {
    tables_.push_back(
        {U32At(records, record), U32At(records, record + 8), U32At(records, record + 12)});
  }
}

// Tables may share some bytes; but many that share all of them would make a small file large.
void TrueTypeFontTables::CheckSizeOfTables() const {
  if (SizeOfTables() > 2 * file_.Size()) Refuse("its tables overlap");
}

std::uint64_t TrueTypeFontTables::SizeOfTables() const {
  std::uint64_t size = 0;
  for (const Table& table : tables_) size += IsInFile(table) ? table.length : 0;
  return size;
}

void TrueTypeFontTables::CheckNeededTables() const {
  for (const NeededTable& needed : kNeededTables) {
    const Table* table = Find(needed.tag);
    if (!table) Refuse("it has no table '" + std::string(needed.tag) + "'");
    Read(*table, 0);
    if (table->length < needed.size) {
      Refuse("its table '" + std::string(needed.tag) + "' is too short");
    }
  }
}

void TrueTypeFontTables::ReadEmAndStyle() {
  const auto head = TableOf<HeadTable>(*this);
  unitsPerEm_ = head.UnitsPerEm();
  if (HasTrueTypeOutlines() && unitsPerEm_ == 0) Refuse("its table 'head' has an em of 0 units");
  os2_ = TableOf<OS2Table>(*this);
  const bool hasOS2 = Find(OS2Table::kTag) != nullptr;
  isBold_ = hasOS2 ? os2_.IsBold() : head.IsBold();
  isItalic_ = hasOS2 ? os2_.IsItalic() : head.IsItalic();
}

bool TrueTypeFontTables::HasTrueTypeOutlines() const {
  return version_ != kVersionPostScript && Find("glyf") != nullptr;
}

std::uint64_t TrueTypeFontTables::OwnSize() const {
  const Table* name = Find("name");
  return kFontHeader + kTableRecord * tables_.size() + (name && IsInFile(*name) ? name->length : 0);
}

Text TrueTypeFontTables::FamilyName() const {
  constexpr std::uint16_t kFamily = 1;
  // Table "name": the number of records at 2, where the texts begin at 4, records from 6 on:
  // platform, encoding, language, which name, length, offset.
  constexpr std::size_t kRecord = 12;
  if (!Find("name")) Refuse("it has no table 'name'");
  const Bytes table = Read("name");
  if (table.size() < 6) Refuse("its table 'name' is too short");
  const std::size_t texts = U16At(table, 4);
  const std::size_t count = std::min<std::size_t>(U16At(table, 2), (table.size() - 6) / kRecord);

  std::u16string name;
  int bestRank = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t record = 6 + kRecord * i;
    const std::uint16_t platform = U16At(table, record);
    const int rank = RankOfName(platform, U16At(table, record + 2), U16At(table, record + 4));
    if (U16At(table, record + 6) != kFamily || rank <= bestRank) continue;
    const std::size_t length = U16At(table, record + 8);
    const std::size_t offset = texts + U16At(table, record + 10);
    if (length == 0 || offset + length > table.size()) continue;
    name = NameIn(std::span(table).subspan(offset, length), platform == 1);
    name.resize(std::min(name.find(u'\0'), name.size()));
    bestRank = rank;
  }
  if (name.find_first_not_of(u' ') == std::u16string::npos)
    Refuse("its table 'name' has no name of the family");
  return Text(name);
}

void TrueTypeFontTables::ReadTable(std::string_view tag, std::span<unsigned char> out) const {
  const Table* table = Find(tag);
  if (!table) return;
  const Bytes bytes = Read(*table, static_cast<std::uint32_t>(out.size()));
  std::copy(bytes.begin(), bytes.end(), out.begin());
}

SystemFace::TextMetrics TrueTypeFontTables::Metrics() const {
  SystemFace::TextMetrics metrics;
  std::int32_t ascent = os2_.WinAscent();
  std::int32_t descent = os2_.WinDescent();
  if (ascent == 0 && descent == 0) {
    const auto hhea = TableOf<HheaTable>(*this);
    ascent = hhea.Ascender();
    descent = -hhea.Descender();
  }
  metrics.ascent = InThousandths(ascent);
  metrics.descent = InThousandths(descent);

  constexpr std::uint16_t kFirst = u' ' - 2;
  constexpr std::uint16_t kLast = 0xFF;
  metrics.firstCharacter = kFirst;
  metrics.lastCharacter = kLast;
  const std::optional<CharacterMap> map = FindCharacterMap();
  const std::uint16_t first = os2_.FirstCharacter();
  const std::uint16_t last = os2_.LastCharacter();
  // Fonts with symbols are said to have all codes, and so do those that say nothing of use.
  if (os2_.HasSymbolCharacterSet() || (map && map->besideSymbols) || last == 0 || first > last) {
    return metrics;
  }
  // As Windows counts: lines break at the font's first character, which is the blank; the character
  // for those that are missing is the one below it, and the first of all is the one below that.
  if (first <= 1) {
    metrics.firstCharacter = first;
  } else if (first <= kLast) {
    metrics.firstCharacter = static_cast<std::uint16_t>(first - 2);
  }
  metrics.lastCharacter = std::min(last, kLast);
  return metrics;
}

std::array<std::int32_t, 256> TrueTypeFontTables::Widths() const {
  std::array<std::int32_t, 256> widths = {};
  const auto hhea = TableOf<HheaTable>(*this);
  const Bytes hmtx = Read("hmtx");
  // The glyphs behind the last width have that width too.
  const std::size_t widthCount = std::min<std::size_t>(hhea.WidthCount(), hmtx.size() / 4);
  if (widthCount == 0) return widths;

  const std::uint16_t glyphCount = TableOf<MaxpTable>(*this).GlyphCount();
  const std::optional<CharacterMap> map = FindCharacterMap();
  for (std::size_t code = 0; code < widths.size(); ++code) {
    std::uint32_t glyph = map ? GlyphOfCode(*map, static_cast<unsigned char>(code)) : 0;
    if (glyph >= glyphCount) glyph = 0;
    const std::size_t place = std::min<std::size_t>(glyph, widthCount - 1);
    widths[code] = InThousandths(U16At(hmtx, 4 * place));
  }
  return widths;
}

std::uint32_t TrueTypeFontTables::GlyphOfCode(const CharacterMap& map, unsigned char code) const {
  if (map.isSymbolic || os2_.HasSymbolCharacterSet()) {
    constexpr std::uint32_t kSymbols = 0xF000;
    const std::uint32_t glyph = GlyphOf(map.bytes, kSymbols + code);
    return glyph == 0 && map.isSymbolic ? GlyphOf(map.bytes, code) : glyph;
  }
  // A Macintosh map has ASCII in common with Unicode.
  if (map.isMacintosh && code >= 0x80) return 0;
  return GlyphOf(map.bytes, AnsiCharacter(static_cast<char>(code)));
}

std::string TrueTypeFontTables::Program() const {
  if (isInCollection_) return ProgramOfCollectionMember();
  std::string bytes(static_cast<std::size_t>(file_.Size()), '\0');
  if (file_.Read(0, bytes) != bytes.size()) Refuse("it is cut short");
  return bytes;
}

std::string TrueTypeFontTables::ProgramOfCollectionMember() const {
  FontFileWriter font(version_, tables_.size(), static_cast<std::size_t>(SizeOfTables()));
  for (const Table& table : tables_) font.Add(table.tag, Read(table, table.length));
  return std::move(font).Finish();
}

const TrueTypeFontTables::Table* TrueTypeFontTables::Find(std::string_view tag) const {
  const auto found =
      std::find_if(tables_.begin(), tables_.end(),
                   [wanted = TagOf(tag)](const Table& table) { return table.tag == wanted; });
  return found == tables_.end() ? nullptr : &*found;
}

bool TrueTypeFontTables::IsInFile(const Table& table) const {
  return std::uint64_t{table.offset} + table.length <= file_.Size();
}

// The first bytes of the table, up to `limit`, after checking that all of it is there.
TrueTypeFontTables::Bytes TrueTypeFontTables::Read(const Table& table, std::uint32_t limit) const {
  if (!IsInFile(table)) {
    std::string tag;
    AppendU32(tag, table.tag);
    Refuse("its table '" + tag + "' reaches beyond the end");
  }
  return ReadBytes(file_, fileName_, table.offset, std::min(table.length, limit));
}

TrueTypeFontTables::Bytes TrueTypeFontTables::Read(std::string_view tag) const {
  const Table* table = Find(tag);
  return table ? Read(*table, table->length) : Bytes();
}

std::optional<TrueTypeFontTables::CharacterMap> TrueTypeFontTables::FindCharacterMap() const {
  // Table "cmap": the number of maps at 2; from 4 on platform, encoding and offset of each.
  constexpr std::size_t kRecord = 8;
  const Bytes table = Read("cmap");
  if (table.size() < 4) return std::nullopt;
  const std::size_t count = std::min<std::size_t>(U16At(table, 2), (table.size() - 4) / kRecord);

  std::size_t best = 0;
  int bestRank = 0;
  int bestKind = 0;
  bool hasSymbols = false;
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t record = 4 + kRecord * i;
    const int kind = RankOfMap(U16At(table, record), U16At(table, record + 2));
    const std::size_t offset = U32At(table, record + 4);
    if (offset >= table.size()) continue;
    hasSymbols = hasSymbols || kind == kSymbolRank;
    const int rank = kind == kSymbolRank && os2_.HasSymbolCharacterSet() ? kBestRank : kind;
    if (rank <= bestRank) continue;
    best = offset;
    bestRank = rank;
    bestKind = kind;
  }
  if (bestRank == 0) return std::nullopt;
  // To the end of the table, whatever length the map gives itself.
  return CharacterMap{Bytes(table.begin() + static_cast<std::ptrdiff_t>(best), table.end()),
                      bestKind == kSymbolRank, bestKind == kMacintoshRank, hasSymbols};
}

// As the system does it: the scale and then 64ths of a unit are rounded, halves away from 0, before
// whole units are, halves upwards. 683 of 2048 units are 333.496, in 64ths 333.5, and so 334.
std::int32_t TrueTypeFontTables::InThousandths(std::int32_t units) const {
  if (unitsPerEm_ == 0) return 0;
  constexpr std::int64_t kPoint = 0x10000;
  const std::int64_t scale = (64'000 * kPoint + unitsPerEm_ / 2) / unitsPerEm_;
  const std::int64_t scaled = std::abs(std::int64_t{units}) * scale;
  const std::int64_t rounded = (scaled + kPoint / 2) / kPoint;
  const std::int64_t in64ths = units < 0 ? -rounded : rounded;
  return static_cast<std::int32_t>((in64ths + 32) >> 6);
}

void TrueTypeFontTables::Refuse(std::string_view what) const { RefuseFile(fileName_, what); }

}  // namespace folivar
