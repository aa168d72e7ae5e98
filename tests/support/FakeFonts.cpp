#include "tests/support/FakeFonts.h"

#include <algorithm>
#include <string_view>

#include "folivar/base/CaseFold.h"

namespace folivar::test {
namespace {

class OpenFakeFace final : public SystemFace {
 public:
  explicit OpenFakeFace(const FakeFace& face) : face_(face) {}

  Text Name() override { return Text(face_.name); }

  void ReadTable(std::string_view tag, std::span<unsigned char> out) override {
    const auto table = face_.tables.find(std::string(tag));
    if (table == face_.tables.end()) return;
    std::copy_n(table->second.begin(), std::min(out.size(), table->second.size()), out.begin());
  }

  std::shared_ptr<const std::string> Program() override {
    return std::make_shared<const std::string>(face_.program);
  }

  TextMetrics Metrics() override { return face_.metrics; }
  std::array<std::int32_t, 256> Widths() override { return face_.widths; }

 private:
  const FakeFace face_;
};

std::string StyleSuffix(bool isBold, bool isItalic) {
  if (isBold) return isItalic ? ",BoldItalic" : ",Bold";
  return isItalic ? ",Italic" : "";
}

}  // namespace

FakeFace::FakeFace() {
  tables["OS/2"].resize(86);
  tables["head"].resize(54);
  tables["PCLT"].resize(54);
  metrics.ascent = 900;
  metrics.descent = 200;
  metrics.firstCharacter = 32;
  metrics.lastCharacter = 34;
  widths.fill(500);
  SetU16("head", 18, 1000);
}

void FakeFace::SetU16(const std::string& table, std::size_t offset, int value) {
  tables[table].at(offset) = static_cast<unsigned char>(value >> 8 & 0xFF);
  tables[table].at(offset + 1) = static_cast<unsigned char>(value & 0xFF);
}

FakeFace& FakeFonts::AddFamily(const std::string& name) {
  FakeFace& face = faces[name];
  face.name = name;
  return face;
}

std::unique_ptr<SystemFace> FakeFonts::SelectFace(const Text& name, bool isBold, bool isItalic) {
  const std::string suffix = StyleSuffix(isBold, isItalic);
  requests.push_back(name.Utf8() + suffix);
  for (const std::string& family : {name.Utf8(), substitute}) {
    for (const std::string& wanted : {family + suffix, family}) {
      for (const auto& [key, face] : faces) {
        if (CompareIgnoringCase(key, wanted) == 0) return std::make_unique<OpenFakeFace>(face);
      }
    }
  }
  return nullptr;
}

std::vector<Text> FakeFonts::FaceNames() {
  std::vector<Text> names;
  for (const auto& [key, face] : faces) names.emplace_back(face.name);
  return names;
}

}  // namespace folivar::test
