#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "folivar/fonts/SystemFonts.h"

namespace folivar::test {

// A TrueType face as a test wants it. The tables are those that a record is filled from; a table
// that a test removes is one that the font lacks.
struct FakeFace {
  FakeFace();

  void SetU16(const std::string& table, std::size_t offset, int value);

  std::string name;
  std::map<std::string, std::vector<unsigned char>> tables;  // "OS/2", "head", "PCLT"
  SystemFace::TextMetrics metrics;
  std::array<std::int32_t, 256> widths = {};
  std::string program = "the font's program";
};

// A system whose fonts are the test's own, and which remembers what it was asked for.
class FakeFonts final : public SystemFonts {
 public:
  // The face for a family in a style: "Sans", "Sans,Bold", "Sans,Italic", "Sans,BoldItalic". A
  // style that is not here is that of the family's upright face; a family that is not here is the
  // substitute.
  std::map<std::string, FakeFace> faces;
  std::string substitute;  // empty: none
  std::vector<std::string> requests;

  // Adds a family of one upright face and returns the face.
  FakeFace& AddFamily(const std::string& name);

  std::unique_ptr<SystemFace> SelectFace(const Text& name, bool isBold, bool isItalic) override;
  std::vector<Text> FaceNames() override;
};

}  // namespace folivar::test
