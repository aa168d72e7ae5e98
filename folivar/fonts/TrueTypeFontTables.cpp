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
#include "folivar/fonts/MacRoman.h"

namespace folivar {
namespace {

using Bytes = std::vector<unsigned char>;

constexpr std::uint32_t kCollection = TagOf("ttcf");
constexpr std::uint32_t kVersion1 = 0x00010000;
constexpr std::uint32_t kVersionApple = TagOf("true");
constexpr std::uint32_t kVersionPostScript = TagOf("OTTO");

constexpr std::size_t kCollectionHeader = 12;  // tag, version, count; then an offset for each font

// Limits that no sound font meets, so that a file's numbers cannot make us work for long.
constexpr std::uint32_t kMostFonts = 0xFFFF;
constexpr std::uint64_t kLargestProgram = std::uint64_t{1} << 30;
constexpr std::uint32_t kLargestNames = 3 * 0xFFFF;   // it counts in 16 bits
constexpr std::uint32_t kLargestWidths = 4 * 0xFFFF;  // so does this
constexpr std::uint32_t kLargestMapList = 4 + 8 * 0xFFFF;
constexpr std::size_t kMostMapsTried = 16;

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

// The better one is the larger: all of Unicode, then its basic plane, then a symbol font's own
// codes, then Macintosh's, then the old ones of East Asia. 0 for the others.
constexpr int kEastAsianRank = 1;
constexpr int kMacintoshRank = 2;
constexpr int kSymbolRank = 3;
constexpr int kBestRank = 8;
int RankOfMap(std::uint16_t platform, std::uint16_t encoding) {
  constexpr std::uint16_t kUnicode = 0;
  constexpr std::uint16_t kMacintosh = 1;
  constexpr std::uint16_t kWindows = 3;
  if (platform == kWindows && encoding == 10) return 7;
  if (platform == kUnicode && (encoding == 4 || encoding == 6)) return 6;
  if (platform == kWindows && encoding == 1) return 5;
  if (platform == kUnicode && encoding != 5) return 4;  // 5 is for variants of characters
  if (platform == kWindows && encoding == 0) return kSymbolRank;
  if (platform == kMacintosh && encoding == 0) return kMacintoshRank;
  if (platform == kWindows && encoding >= 2 && encoding <= 6) return kEastAsianRank;
  return 0;
}

// English Windows names before others of Windows, those before Unicode's and Macintosh's. 0 for
// those that are not in Unicode, which are not read: the old Chinese, Japanese and Korean ones of
// Windows, and what is not Roman of Macintosh.
int RankOfName(std::uint16_t platform, std::uint16_t encoding, std::uint16_t language) {
  constexpr std::uint16_t kEnglish = 0x0409;
  if (platform == 3 && encoding > 1 && encoding != 10) return 0;
  if (platform == 3) return language == kEnglish ? 4 : 3;
  if (platform == 0) return 2;
  return platform == 1 && encoding == 0 ? 1 : 0;
}

std::u16string NameIn(std::span<const unsigned char> bytes, bool isMacintosh) {
  std::u16string name;
  if (isMacintosh) {
    for (const unsigned char byte : bytes) name += MacRomanCharacter(byte);
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
  if (count > kMostFonts) RefuseFile(fileName, "it has " + std::to_string(count) + " fonts");
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
    Read(*table, 0, 0);
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

bool TrueTypeFontTables::HasPostScriptOutlines() const {
  return Find("CFF ") != nullptr || Find("CFF2") != nullptr;
}

std::uint16_t TrueTypeFontTables::Weight() const {
  constexpr std::uint16_t kNormal = 400;
  constexpr std::uint16_t kBold = 700;
  if (os2_.Weight() != 0) return os2_.Weight();
  return isBold_ ? kBold : kNormal;
}

std::uint16_t TrueTypeFontTables::Width() const {
  constexpr std::uint16_t kNormal = 5;
  return os2_.Width() != 0 ? os2_.Width() : kNormal;
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
  const Bytes table = Read("name", kLargestNames);
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
  return name.find_first_not_of(u' ') == std::u16string::npos ? Text() : Text(name);
}

void TrueTypeFontTables::ReadTable(std::string_view tag, std::span<unsigned char> out) const {
  const Table* table = Find(tag);
  if (!table) return;
  const Bytes bytes = Read(*table, 0, static_cast<std::uint32_t>(out.size()));
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
  const std::uint16_t first = os2_.FirstCharacter();
  const std::uint16_t last = os2_.LastCharacter();
  // Fonts with symbols are said to have all codes, and so do those that say nothing of use.
  if (os2_.HasSymbolCharacterSet() || HasSymbols() || last == 0 || first > last) {
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
  const Bytes hmtx = Read("hmtx", kLargestWidths);
  // The glyphs behind the last width have that width too.
  const std::size_t widthCount = std::min<std::size_t>(hhea.WidthCount(), hmtx.size() / 4);
  if (widthCount == 0) return widths;

  const std::uint16_t glyphCount = TableOf<MaxpTable>(*this).GlyphCount();
  const RankedMap map = FindCharacterMap();
  for (std::size_t code = 0; code < widths.size(); ++code) {
    std::uint32_t glyph = GlyphOfCode(map, static_cast<unsigned char>(code));
    if (glyph >= glyphCount) glyph = 0;
    const std::size_t place = std::min<std::size_t>(glyph, widthCount - 1);
    widths[code] = InThousandths(U16At(hmtx, 4 * place));
  }
  return widths;
}

std::uint32_t TrueTypeFontTables::GlyphOfCode(const RankedMap& map, unsigned char code) const {
  if (map.rank == kSymbolRank || (os2_.HasSymbolCharacterSet() && map.rank > kSymbolRank)) {
    constexpr std::uint32_t kSymbols = 0xF000;
    const std::uint32_t glyph = map.characters.GlyphOf(kSymbols + code);
    return glyph == 0 && map.rank == kSymbolRank ? map.characters.GlyphOf(code) : glyph;
  }
  if (os2_.HasSymbolCharacterSet()) return map.characters.GlyphOf(code);
  const char16_t character = AnsiCharacter(static_cast<char>(code));
  if (map.rank == kMacintoshRank) {
    const auto macCode = MacRomanCode(character);
    return macCode ? map.characters.GlyphOf(*macCode) : 0;
  }
  // The old codes have ASCII in common with Unicode.
  if (map.rank == kEastAsianRank && code >= 0x80) return 0;
  return map.characters.GlyphOf(character);
}

std::string TrueTypeFontTables::Program() const {
  const std::uint64_t size = isInCollection_ ? SizeOfTables() : file_.Size();
  if (size > kLargestProgram) {
    throw Error::Overflow("a font of more than 1 GiB cannot be embedded")
        .WithObject(FileNamed(fileName_));
  }
  if (isInCollection_) return ProgramOfCollectionMember();
  std::string bytes(static_cast<std::size_t>(size), '\0');
  if (file_.Read(0, bytes) != bytes.size()) Refuse("it is cut short");
  return bytes;
}

std::string TrueTypeFontTables::ProgramOfCollectionMember() const {
  FontFileWriter font(version_, tables_.size(), static_cast<std::size_t>(SizeOfTables()));
  for (const Table& table : tables_) font.Add(table.tag, Read(table, 0, table.length));
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

// The bytes of the table from `offset` on, up to `limit`, after checking that all of it is there.
TrueTypeFontTables::Bytes TrueTypeFontTables::Read(const Table& table, std::uint32_t offset,
                                                   std::uint32_t limit) const {
  if (!IsInFile(table)) {
    std::string tag;
    AppendU32(tag, table.tag);
    Refuse("its table '" + tag + "' reaches beyond the end");
  }
  const std::uint32_t start = std::min(offset, table.length);
  return ReadBytes(file_, fileName_, std::uint64_t{table.offset} + start,
                   std::min(table.length - start, limit));
}

TrueTypeFontTables::Bytes TrueTypeFontTables::Read(std::string_view tag,
                                                   std::uint32_t limit) const {
  const Table* table = Find(tag);
  return table ? Read(*table, 0, limit) : Bytes();
}

// The best ones first.
std::vector<TrueTypeFontTables::MapPlace> TrueTypeFontTables::ListCharacterMaps() const {
  // Table "cmap": the number of maps at 2; from 4 on platform, encoding and offset of each.
  constexpr std::size_t kRecord = 8;
  std::vector<MapPlace> maps;
  const Table* table = Find("cmap");
  const Bytes list = Read("cmap", kLargestMapList);
  if (list.size() < 4) return maps;
  const std::size_t count = std::min<std::size_t>(U16At(list, 2), (list.size() - 4) / kRecord);
  for (std::size_t record = 4; record < 4 + kRecord * count; record += kRecord) {
    const int rank = RankOfMap(U16At(list, record), U16At(list, record + 2));
    const std::uint32_t offset = U32At(list, record + 4);
    if (rank != 0 && offset < table->length) maps.push_back({rank, offset});
  }
  const auto merit = [this](const MapPlace& map) {
    return map.rank == kSymbolRank && os2_.HasSymbolCharacterSet() ? kBestRank : map.rank;
  };
  std::stable_sort(maps.begin(), maps.end(),
                   [&](const MapPlace& a, const MapPlace& b) { return merit(a) > merit(b); });
  return maps;
}

bool TrueTypeFontTables::HasSymbols() const {
  const std::vector<MapPlace> maps = ListCharacterMaps();
  return std::any_of(maps.begin(), maps.end(),
                     [](const MapPlace& map) { return map.rank == kSymbolRank; });
}

// The best one of those that can be read.
// The best one that gives a glyph to some code.
TrueTypeFontTables::RankedMap TrueTypeFontTables::FindCharacterMap() const {
  std::size_t tried = 0;
  for (const MapPlace& place : ListCharacterMaps()) {
    const Table& table = *Find("cmap");
    if (!CharacterMap(Read(table, place.offset, CharacterMap::kStart)).ClaimsCharacters()) continue;
    if (++tried > kMostMapsTried) break;
    // As far as the table goes, whatever length the map gives itself.
    RankedMap map{place.rank, CharacterMap(Read(table, place.offset, CharacterMap::kLargest))};
    if (HasGlyphs(map)) return map;
  }
  return {};
}

bool TrueTypeFontTables::HasGlyphs(const RankedMap& map) const {
  for (int code = 0xFF; code >= 0; --code) {
    if (GlyphOfCode(map, static_cast<unsigned char>(code)) != 0) return true;
  }
  return false;
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
