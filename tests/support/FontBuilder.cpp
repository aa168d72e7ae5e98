#include "tests/support/FontBuilder.h"

#include <bit>
#include <stdexcept>

namespace folivar::test {
namespace {

constexpr std::size_t kHeader = 12;
constexpr std::size_t kRecord = 16;

std::string Repeated(std::string_view bytes, std::size_t times) {
  std::string result;
  for (std::size_t i = 0; i < times; ++i) result += bytes;
  return result;
}

std::string Padded(std::string bytes) {
  bytes.resize((bytes.size() + 3) / 4 * 4, '\0');
  return bytes;
}

// Of `count` things of `size` bytes: what a binary search in them starts from.
std::string SearchNumbers(std::size_t count, std::size_t size) {
  const std::size_t range = std::bit_floor(count) * size;
  return U16(static_cast<std::uint32_t>(range)) +
         U16(static_cast<std::uint32_t>(std::bit_width(count)) - 1) +
         U16(static_cast<std::uint32_t>(count * size - range));
}

// The header and the records of a font whose tables begin at these places.
std::string DirectoryOf(const FontBuilder& font, const std::map<std::string, std::size_t>& places) {
  std::string bytes = U32(font.version) + U16(static_cast<std::uint32_t>(font.tables.size())) +
                      SearchNumbers(font.tables.size(), kRecord);
  for (const auto& [tag, table] : font.tables) {
    bytes += tag + U32(ChecksumOf(table)) + U32(static_cast<std::uint32_t>(places.at(tag))) +
             U32(static_cast<std::uint32_t>(table.size()));
  }
  return bytes;
}

}  // namespace

std::string U16(std::uint32_t value) {
  return {static_cast<char>(value >> 8 & 0xFF), static_cast<char>(value & 0xFF)};
}

std::string U32(std::uint32_t value) { return U16(value >> 16) + U16(value); }

void SetU16(std::string& bytes, std::size_t offset, std::uint32_t value) {
  bytes.replace(offset, 2, U16(value));
}

void SetU32(std::string& bytes, std::size_t offset, std::uint32_t value) {
  bytes.replace(offset, 4, U32(value));
}

std::uint32_t U16In(std::string_view bytes, std::size_t offset) {
  return static_cast<unsigned char>(bytes.at(offset)) * 256U +
         static_cast<unsigned char>(bytes.at(offset + 1));
}

std::uint32_t U32In(std::string_view bytes, std::size_t offset) {
  return U16In(bytes, offset) * 65536U + U16In(bytes, offset + 2);
}

FontBuilder::FontBuilder() {
  constexpr std::uint32_t kGlyphs = 8;
  std::string& head = tables["head"] = std::string(54, '\0');
  SetU32(head, 0, 0x00010000);
  SetU32(head, 12, 0x5F0F3CF5);
  SetU16(head, 18, 1000);  // units per em
  SetU16(head, 36, 0xFF9C);
  SetU16(head, 38, 0xFF38);
  SetU16(head, 40, 1200);
  SetU16(head, 42, 900);
  SetU16(head, 46, 8);

  std::string& hhea = tables["hhea"] = std::string(36, '\0');
  SetU32(hhea, 0, 0x00010000);
  SetU16(hhea, 4, 750);
  SetU16(hhea, 6, 0xFF06);    // -250
  SetU16(hhea, 34, kGlyphs);  // widths

  std::string& maxp = tables["maxp"] = std::string(32, '\0');
  SetU32(maxp, 0, 0x00010000);
  SetU16(maxp, 4, kGlyphs);
  SetU16(maxp, 14, 2);

  for (std::uint32_t glyph = 0; glyph < kGlyphs; ++glyph) {
    tables["hmtx"] += U16(100 + glyph) + U16(0);
  }
  tables["loca"] = Repeated(U16(0), kGlyphs + 1);
  tables["glyf"] = U32(0);
  tables["cmap"] = MapTable({{3, 1, SegmentsMap({{'A', 'G', 1}})}});
  tables["name"] = NameTable({{.bytes = BigEndian(u"Test Sans")}});

  std::string& os2 = tables["OS/2"] = std::string(86, '\0');
  SetU16(os2, 0, 1);
  SetU16(os2, 4, 400);
  SetU16(os2, 6, 5);
  SetU16(os2, 64, 'A');
  SetU16(os2, 66, 'G');
  SetU16(os2, 74, 800);  // Windows ascent
  SetU16(os2, 76, 200);  // Windows descent

  tables["post"] = U32(0x00030000) + std::string(28, '\0');
}

FontBuilder::FontBuilder(std::string_view file) : version(U32In(file, 0)) {
  for (std::size_t i = 0; i < U16In(file, 4); ++i) {
    const std::size_t record = kHeader + kRecord * i;
    tables[std::string(file.substr(record, 4))] =
        file.substr(U32In(file, record + 8), U32In(file, record + 12));
  }
}

std::string FontBuilder::Build() const {
  std::map<std::string, std::size_t> places;
  std::string bodies;
  const std::size_t start = kHeader + kRecord * tables.size();
  for (const auto& [tag, table] : tables) {
    places[tag] = start + bodies.size();
    bodies += Padded(table);
  }
  return DirectoryOf(*this, places) + bodies;
}

std::string BuildCollection(const std::vector<FontBuilder>& fonts) {
  std::size_t start = kHeader + 4 * fonts.size();
  std::string header = "ttcf" + U32(0x00010000) + U32(static_cast<std::uint32_t>(fonts.size()));
  for (const FontBuilder& font : fonts) {
    header += U32(static_cast<std::uint32_t>(start));
    start += kHeader + kRecord * font.tables.size();
  }

  std::map<std::string, std::size_t> placeOf;  // by the table's bytes
  std::string directories;
  std::string bodies;
  for (const FontBuilder& font : fonts) {
    std::map<std::string, std::size_t> places;
    for (const auto& [tag, table] : font.tables) {
      const auto [place, isNew] = placeOf.emplace(table, start + bodies.size());
      if (isNew) bodies += Padded(table);
      places[tag] = place->second;
    }
    directories += DirectoryOf(font, places);
  }
  return header + directories + bodies;
}

std::size_t RecordOf(std::string_view file, std::string_view tag) {
  for (std::size_t i = 0; i < U16In(file, 4); ++i) {
    const std::size_t record = kHeader + kRecord * i;
    if (file.substr(record, 4) == tag) return record;
  }
  throw std::runtime_error("the font has no table " + std::string(tag));
}

std::uint32_t ChecksumOf(std::string_view bytes) {
  const std::string words = Padded(std::string(bytes));
  std::uint32_t sum = 0;
  for (std::size_t i = 0; i < words.size(); i += 4) sum += U32In(words, i);
  return sum;
}

std::string NameTable(const std::vector<FontName>& names) {
  const auto count = static_cast<std::uint32_t>(names.size());
  std::string records;
  std::string texts;
  for (const FontName& name : names) {
    records += U16(name.platform) + U16(name.encoding) + U16(name.language) + U16(name.name) +
               U16(static_cast<std::uint32_t>(name.bytes.size())) +
               U16(static_cast<std::uint32_t>(texts.size()));
    texts += name.bytes;
  }
  return U16(0) + U16(count) + U16(6 + 12 * count) + records + texts;
}

std::string BigEndian(std::u16string_view text) {
  std::string bytes;
  for (const char16_t unit : text) bytes += U16(unit);
  return bytes;
}

std::string MapTable(const std::vector<FontMap>& maps) {
  std::string records;
  std::string bodies;
  for (const FontMap& map : maps) {
    records += U16(map.platform) + U16(map.encoding) +
               U32(static_cast<std::uint32_t>(4 + 8 * maps.size() + bodies.size()));
    bodies += Padded(map.bytes);
  }
  return U16(0) + U16(static_cast<std::uint32_t>(maps.size())) + records + bodies;
}

std::string SegmentsMap(const std::vector<MapSegment>& segments) {
  std::vector<MapSegment> all = segments;
  all.push_back({0xFFFF, 0xFFFF, 0});  // the map's end
  std::string ends;
  std::string starts;
  std::string deltas;
  std::string offsets;
  std::string glyphs;
  for (std::size_t i = 0; i < all.size(); ++i) {
    const MapSegment& segment = all[i];
    const bool isListed = !segment.glyphs.empty();
    ends += U16(segment.last);
    starts += U16(segment.first);
    deltas += U16(isListed ? 0 : segment.firstGlyph - segment.first);
    // From the offset itself to the first glyph of the list.
    offsets += U16(isListed ? static_cast<std::uint32_t>(2 * (all.size() - i) + glyphs.size()) : 0);
    for (const std::uint32_t glyph : segment.glyphs) glyphs += U16(glyph);
  }
  const std::string body = U16(static_cast<std::uint32_t>(2 * all.size())) +
                           SearchNumbers(all.size(), 2) + ends + U16(0) + starts + deltas +
                           offsets + glyphs;
  return U16(4) + U16(static_cast<std::uint32_t>(body.size() + 6)) + U16(0) + body;
}

std::string ArrayMap(std::uint32_t first, const std::vector<std::uint32_t>& glyphs) {
  const auto count = static_cast<std::uint32_t>(glyphs.size());
  std::string bytes = U16(6) + U16(10 + 2 * count) + U16(0) + U16(first) + U16(count);
  for (const std::uint32_t glyph : glyphs) bytes += U16(glyph);
  return bytes;
}

std::string GroupsMap(const std::vector<MapSegment>& groups) {
  const auto count = static_cast<std::uint32_t>(groups.size());
  std::string bytes = U16(12) + U16(0) + U32(16 + 12 * count) + U32(0) + U32(count);
  for (const MapSegment& group : groups) {
    bytes += U32(group.first) + U32(group.last) + U32(group.firstGlyph);
  }
  return bytes;
}

}  // namespace folivar::test
