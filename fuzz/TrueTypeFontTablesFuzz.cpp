#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "folivar/fonts/TrueTypeFontTables.h"
#include "fuzz/Refusal.h"
#include "tests/support/MemorySource.h"

namespace folivar {
namespace {

using fuzz::IsRefused;
using test::MemorySource;

constexpr const char* kFileName = "fuzz.ttf";

// What the members say; nothing where they refuse.
struct Answers {
  bool hasTrueTypeOutlines;
  bool isBold;
  bool isItalic;
  std::optional<Text> family;
  std::optional<std::array<std::int32_t, 4>> metrics;
  std::optional<std::array<std::int32_t, 256>> widths;
  std::vector<std::optional<std::array<unsigned char, 86>>> tables;

  bool operator==(const Answers&) const = default;
};

Answers AnswersOf(const TrueTypeFontTables& font) {
  Answers answers = {font.HasTrueTypeOutlines(), font.IsBold(), font.IsItalic(), {}, {}, {}, {}};
  IsRefused(kFileName, [&] { answers.family = font.FamilyName(); });
  IsRefused(kFileName, [&] {
    const auto [ascent, descent, first, last] = font.Metrics();
    answers.metrics = {ascent, descent, first, last};
  });
  IsRefused(kFileName, [&] { answers.widths = font.Widths(); });
  for (const std::string_view tag : {"OS/2", "PCLT", "hhea", "name"}) {
    std::array<unsigned char, 86> bytes = {};
    const bool isRefused = IsRefused(kFileName, [&] { font.ReadTable(tag, bytes); });
    answers.tables.push_back(isRefused ? std::nullopt : std::optional(bytes));
  }
  return answers;
}

// As a file of its own it is one font, which says the same.
void CompareWithProgram(const TrueTypeFontTables& font, const Answers& answers) {
  std::string program;
  if (IsRefused(kFileName, [&] { program = font.Program(); })) return;
  MemorySource file(program);
  const bool isRefused = IsRefused(kFileName, [&] {
    const TrueTypeFontTables again(file, kFileName, 0);
    if (AnswersOf(again) != answers) std::abort();
  });
  if (isRefused || TrueTypeFontTables::FontCount(file, kFileName) != 1) std::abort();
}

// Every font, as FacesInFile goes through them.
void ReadFile(std::string_view bytes) {
  MemorySource file(bytes);
  IsRefused(kFileName, [&] {
    const std::uint32_t count = TrueTypeFontTables::FontCount(file, kFileName);
    std::uint64_t size = 0;
    for (std::uint32_t index = 0; index < count && size <= bytes.size(); ++index) {
      const TrueTypeFontTables font(file, kFileName, index);
      size += font.OwnSize();
      CompareWithProgram(font, AnswersOf(font));
    }
  });
}

}  // namespace
}  // namespace folivar

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  folivar::ReadFile({reinterpret_cast<const char*>(data), size});
  return 0;
}
