#include "tests/support/AfmFile.h"

#include <regex>
#include <sstream>
#include <stdexcept>

#include "tests/support/TestFiles.h"

namespace folivar::test {

std::string FaceTestName(const testing::TestParamInfo<std::string_view>& face) {
  std::string name(face.param);
  std::erase(name, '-');
  return name;
}

std::string AfmBytes(std::string_view face) {
  return ReadBytes(DataPath("../folivar/fonts/afm") / (std::string(face) + ".afm"));
}

AfmFile ReadAfmFile(std::string_view face) {
  static const std::regex kHeader(R"((\w+)((?: -?[0-9.]+)+) *)");
  static const std::regex kGlyph(
      R"(C (-?\d+) ; WX (\d+) ; N \w+ ; B (-?\d+) (-?\d+) (-?\d+) (-?\d+) ;.*)");

  AfmFile afm;
  std::istringstream file(AfmBytes(face));
  std::smatch match;
  int glyphLines = 0;
  int glyphsPromised = 0;
  for (std::string line; std::getline(file, line);) {
    if (!line.ends_with('\r')) throw std::runtime_error("no CR LF behind: " + line);
    line.pop_back();
    if (std::regex_match(line, match, kGlyph)) {
      ++glyphLines;
      const int code = std::stoi(match[1]);
      if (code == -1) continue;
      const AfmFile::Glyph glyph{
          std::stof(match[2]),
          {std::stof(match[3]), std::stof(match[4]), std::stof(match[5]), std::stof(match[6])}};
      if (!afm.glyphs.emplace(code, glyph).second) throw std::runtime_error("twice: " + line);
    } else if (std::regex_match(line, match, kHeader)) {
      const std::string key = match[1];
      std::istringstream numbers(match[2]);
      std::vector<float> values;
      for (float value = 0; numbers >> value;) values.push_back(value);
      if (key == "StartCharMetrics") glyphsPromised = static_cast<int>(values.at(0));
      afm.header.emplace(key, values);
    }
  }
  // The file itself says how many glyphs there are.
  if (glyphLines == 0 || glyphLines != glyphsPromised) {
    throw std::runtime_error("not every glyph was understood in " + std::string(face));
  }
  return afm;
}

}  // namespace folivar::test
