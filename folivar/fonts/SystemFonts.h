#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "folivar/base/Api.h"
#include "folivar/base/Text.h"

namespace folivar {

// A TrueType face that is ready to be measured, at a character height of 1000 units, so that every
// measure is in thousandths of the em. Used while one record is filled, then let go.
class FOLIVAR_API SystemFace {
 public:
  struct TextMetrics {
    std::int32_t ascent = 0;
    std::int32_t descent = 0;  // below the baseline, counted downwards
    std::uint16_t firstCharacter = 0;
    std::uint16_t lastCharacter = 0;
  };

  virtual ~SystemFace();
  SystemFace(const SystemFace&) = delete;
  SystemFace& operator=(const SystemFace&) = delete;

  // The family's name: "Liberation Sans", in bold too.
  virtual Text Name() = 0;

  // Copies the first bytes of one of the font's tables: "OS/2". What the table does not have, or
  // the whole of a table that the font lacks, is left as it is.
  virtual void ReadTable(std::string_view tag, std::span<unsigned char> out) = 0;

  // The whole font program, as a font file of its own.
  virtual std::shared_ptr<const std::string> Program() = 0;

  virtual TextMetrics Metrics() = 0;

  // The advance widths of the codes 0 to 255 of Windows code page 1252.
  virtual std::array<std::int32_t, 256> Widths() = 0;

  // The file that the face is read from, which a save must not overwrite; empty where that is not
  // known.
  virtual Text FileName();

 protected:
  SystemFace() = default;
};

// Port: where a document's TrueType faces come from. Fonts with other outlines do not count.
class FOLIVAR_API SystemFonts {
 public:
  virtual ~SystemFonts();
  SystemFonts(const SystemFonts&) = delete;
  SystemFonts& operator=(const SystemFonts&) = delete;

  // The face of a family, by its name without regard to case, in the style nearest to the one
  // wanted; where there is no such family the face that the platform puts in its place, which tells
  // its own name; null when there is none to put.
  virtual std::unique_ptr<SystemFace> SelectFace(const Text& name, bool isBold, bool isItalic) = 0;

  // The names of the families, in any order; one may come more than once.
  virtual std::vector<Text> FaceNames() = 0;

  // Those that are installed: the default. One that is installed later counts as soon as the system
  // tells; fontconfig looks every 30 seconds, or as its configuration says.
  static std::shared_ptr<SystemFonts> OfThisSystem();

 protected:
  SystemFonts() = default;
};

}  // namespace folivar
