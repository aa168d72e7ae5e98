#include "folivar/fonts/FontFileWriter.h"

#include <bit>
#include <string_view>
#include <utility>

#include "folivar/base/BigEndian.h"
#include "folivar/fonts/FontTableFields.h"

namespace folivar {
namespace {

// The sum of the big-endian words; the bytes are a whole number of them.
std::uint32_t Checksum(std::string_view bytes) {
  const std::span<const unsigned char> words(reinterpret_cast<const unsigned char*>(bytes.data()),
                                             bytes.size());
  std::uint32_t sum = 0;
  for (std::size_t i = 0; i + 4 <= words.size(); i += 4) sum += U32At(words, i);
  return sum;
}

}  // namespace

FontFileWriter::FontFileWriter(std::uint32_t version, std::size_t tableCount,
                               std::size_t tableBytes) {
  const std::size_t tablesStart = kFontHeader + kTableRecord * tableCount;
  font_.reserve(tablesStart + tableBytes + 3 * tableCount);
  const auto count = static_cast<std::uint32_t>(tableCount);
  const std::uint32_t searchRange = std::bit_floor(count) * kTableRecord;
  AppendU32(font_, version);
  AppendU16(font_, count);
  AppendU16(font_, searchRange);
  AppendU16(font_, count == 0 ? 0 : static_cast<std::uint32_t>(std::bit_width(count)) - 1);
  AppendU16(font_, count * kTableRecord - searchRange);
  font_.resize(tablesStart);
}

void FontFileWriter::Add(std::uint32_t tag, std::span<const unsigned char> table) {
  const std::size_t start = font_.size();
  font_.append(table.begin(), table.end());
  font_.resize((font_.size() + 3) / 4 * 4, '\0');
  if (tag == TagOf(HeadTable::kTag) && table.size() >= HeadTable::kChecksumAdjustment + 4) {
    // Counted as 0 in the sum itself.
    adjustment_ = start + HeadTable::kChecksumAdjustment;
    font_.replace(adjustment_, 4, 4, '\0');
  }
  AppendU32(records_, tag);
  AppendU32(records_, Checksum(std::string_view(font_).substr(start)));
  AppendU32(records_, static_cast<std::uint32_t>(start));
  AppendU32(records_, static_cast<std::uint32_t>(table.size()));
}

std::string FontFileWriter::Finish() && {
  font_.replace(kFontHeader, records_.size(), records_);
  if (adjustment_ != 0) {
    constexpr std::uint32_t kSumOfFile = 0xB1B0AFBA;
    std::string adjustment;
    AppendU32(adjustment, kSumOfFile - Checksum(font_));
    font_.replace(adjustment_, adjustment.size(), adjustment);
  }
  return std::move(font_);
}

}  // namespace folivar
