#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace folivar {

// Puts a font file together from tables, in the order in which they are added:
//
//   00 01 00 00  00 02  00 20 00 01 00 00         version, two tables, searching
//   'g' 'l' 'y' 'f'  checksum  offset  length     a record for each table
//   ...                                           the tables, filled up to whole words
class FontFileWriter {
 public:
  // For exactly so many tables, which take so many bytes without filling.
  FontFileWriter(std::uint32_t version, std::size_t tableCount, std::size_t tableBytes);

  void Add(std::uint32_t tag, std::span<const unsigned char> table);

  // The file, in which the checksums come out.
  std::string Finish() &&;

 private:
  std::string font_;
  std::string records_;
  std::size_t adjustment_ = 0;  // where table "head" has it; 0 without one
};

}  // namespace folivar
