// The system's fonts on Windows: its graphics device interface measures them.

#define NOMINMAX
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <exception>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "folivar/base/AnsiText.h"
#include "folivar/base/CaseFold.h"
#include "folivar/file/ByteSource.h"
#include "folivar/fonts/FontPrograms.h"
#include "folivar/fonts/SystemFonts.h"
#include "folivar/fonts/TrueTypeFontTables.h"
#include "folivar/platform/DummyForm.h"

namespace folivar {
namespace {

// The name of a table as the system wants it: other than in files, the first letter in the low
// byte. The whole file is table 0.
using Tag = DWORD;

constexpr Tag SystemTag(std::string_view name) {
  Tag tag = 0;
  for (std::size_t i = name.size(); i > 0; --i) {
    tag = tag << 8 | static_cast<unsigned char>(name[i - 1]);
  }
  return tag;
}

constexpr Tag kWholeFont = 0;
constexpr Tag kWholeCollection = SystemTag("ttcf");

// 0 for a table that the selected font lacks.
std::size_t TableSize(HDC dc, Tag tag) {
  const DWORD size = GetFontData(dc, tag, 0, nullptr, 0);
  return size == GDI_ERROR ? 0 : size;
}

// Returns how many bytes there were to copy.
std::size_t CopyTable(HDC dc, Tag tag, std::size_t offset, std::span<char> out) {
  const std::size_t size = TableSize(dc, tag);
  if (offset >= size) return 0;
  const std::size_t wanted = std::min(size - offset, out.size());
  if (wanted == 0) return 0;
  const DWORD copied =
      GetFontData(dc, tag, static_cast<DWORD>(offset), out.data(), static_cast<DWORD>(wanted));
  return copied == GDI_ERROR ? 0 : copied;
}

std::string WholeTable(HDC dc, Tag tag) {
  std::string bytes(TableSize(dc, tag), '\0');
  bytes.resize(CopyTable(dc, tag, 0, bytes));
  return bytes;
}

// The file of the selected font.
class SelectedFontFile final : public ByteSource {
 public:
  SelectedFontFile(HDC dc, Tag whole) : dc_(dc), whole_(whole), size_(TableSize(dc, whole)) {}

  std::uint64_t Size() const override { return size_; }

  std::size_t Read(std::uint64_t offset, std::span<char> out) override {
    if (offset >= size_) return 0;
    return CopyTable(dc_, whole_, static_cast<std::size_t>(offset), out);
  }

 private:
  HDC dc_;
  Tag whole_;
  std::size_t size_;
};

// A face that is selected into a device context of its own.
class GdiFace final : public SystemFace {
 public:
  GdiFace(const Text& name, bool isBold, bool isItalic)
      : dc_(form_.DeviceContext()), previousMode_(SetMapMode(dc_, MM_TEXT)) {
    // At a character height of 1000 units.
    constexpr int kHeight = -1000;
    std::string faceName(AnsiText(name).Bytes());
    faceName.resize(std::min<std::size_t>(faceName.size(), LF_FACESIZE - 1));
    font_ = CreateFontA(kHeight, 0, 0, 0, isBold ? FW_BOLD : FW_NORMAL, isItalic ? 255 : 0, FALSE,
                        FALSE, DEFAULT_CHARSET, OUT_TT_ONLY_PRECIS, CLIP_DEFAULT_PRECIS,
                        DEFAULT_QUALITY, DEFAULT_PITCH | FF_DONTCARE, faceName.c_str());
    previousFont_ = SelectObject(dc_, font_);
  }

  ~GdiFace() override {
    SelectObject(dc_, previousFont_);
    DeleteObject(font_);
    SetMapMode(dc_, previousMode_);
  }

  bool HasTrueTypeOutlines() const { return TableSize(dc_, SystemTag("glyf")) != 0; }

  Text Name() override {
    std::array<char, LF_FACESIZE> name = {};
    GetTextFaceA(dc_, static_cast<int>(name.size()), name.data());
    return AnsiBytesToText({name.data(), strnlen(name.data(), name.size())});
  }

  void ReadTable(std::string_view tag, std::span<unsigned char> out) override {
    CopyTable(dc_, SystemTag(tag), 0, {reinterpret_cast<char*>(out.data()), out.size()});
  }

  std::shared_ptr<const std::string> Program() override {
    const bool isInCollection = TableSize(dc_, kWholeCollection) != 0;
    return SharedFontProgram(Identity(isInCollection), [&] {
      return isInCollection ? ProgramOfCollectionMember() : WholeTable(dc_, kWholeFont);
    });
  }

  TextMetrics Metrics() override {
    TEXTMETRICA text = {};
    GetTextMetricsA(dc_, &text);
    // Which questions the system is asked is fixed, and this is one of them; what it answers here
    // is in no field of a record.
    OUTLINETEXTMETRICA outline = {};
    GetOutlineTextMetricsA(dc_, sizeof outline, &outline);
    return {text.tmAscent, text.tmDescent, text.tmFirstChar, text.tmLastChar};
  }

  std::array<std::int32_t, 256> Widths() override {
    std::array<INT, 256> widths = {};
    GetCharWidth32A(dc_, 0, 255, widths.data());
    return widths;
  }

 private:
  // Table "head" holds the checksum of the whole font and when it was changed, the start of the
  // file the checksums of the tables.
  std::string Identity(bool isInCollection) const {
    const Tag whole = isInCollection ? kWholeCollection : kWholeFont;
    std::array<char, 512> start = {};
    CopyTable(dc_, whole, 0, start);
    std::string identity = std::to_string(TableSize(dc_, whole)) + '\0';
    identity.append(start.data(), start.size());
    for (const std::string_view tag : kTellingTables) identity += WholeTable(dc_, SystemTag(tag));
    return identity;
  }

  // The system does not say which font of the collection is selected: it is the one with the same
  // tables. Empty when none has.
  std::string ProgramOfCollectionMember() {
    SelectedFontFile file(dc_, kWholeCollection);
    const std::string name = Name().Utf8();
    std::array<std::string, kTellingTables.size()> wanted;
    std::transform(kTellingTables.begin(), kTellingTables.end(), wanted.begin(),
                   [&](std::string_view tag) { return WholeTable(dc_, SystemTag(tag)); });
    const std::uint32_t count = TrueTypeFontTables::FontCount(file, name);
    for (std::uint32_t index = 0; index < count; ++index) {
      const TrueTypeFontTables tables(file, name, index);
      const auto isTheSame = [&](std::string_view tag, const std::string& bytes) {
        std::string table(bytes.size(), '\0');
        tables.ReadTable(tag, {reinterpret_cast<unsigned char*>(table.data()), table.size()});
        return table == bytes;
      };
      if (std::equal(kTellingTables.begin(), kTellingTables.end(), wanted.begin(), isTheSame)) {
        return tables.Program();
      }
    }
    return {};
  }

  static constexpr auto kTellingTables = std::to_array<std::string_view>({"head", "OS/2", "name"});

  DummyForm form_;
  HDC dc_;
  int previousMode_;
  HFONT font_ = nullptr;
  HGDIOBJ previousFont_ = nullptr;
};

// What the system's enumeration calls back with; nothing may be thrown through it.
struct FamilyNames {
  std::vector<Text> names;
  std::exception_ptr failure;
};

int CALLBACK AddFamily(const LOGFONTA* font, const TEXTMETRICA*, DWORD fontType,
                       LPARAM context) noexcept {
  auto& families = *reinterpret_cast<FamilyNames*>(context);
  try {
    const std::string_view name(font->lfFaceName, strnlen(font->lfFaceName, LF_FACESIZE));
    // "@" marks a second name of a font, for columns written downwards.
    if ((fontType & TRUETYPE_FONTTYPE) != 0 && !name.starts_with('@')) {
      families.names.push_back(AnsiBytesToText(name));
    }
    return 1;
  } catch (...) {
    families.failure = std::current_exception();
    return 0;
  }
}

class GdiFonts final : public SystemFonts {
 public:
  // A face with other outlines counts as missing: the empty name stands for any other.
  std::unique_ptr<SystemFace> SelectFace(const Text& name, bool isBold, bool isItalic) override {
    for (const Text& wanted : {name, Text()}) {
      auto face = std::make_unique<GdiFace>(wanted, isBold, isItalic);
      if (face->HasTrueTypeOutlines()) return face;
    }
    return nullptr;
  }

  // A family comes once for each of its scripts.
  std::vector<Text> FaceNames() override {
    FamilyNames families;
    const DummyForm form;
    LOGFONTA any = {};
    any.lfCharSet = DEFAULT_CHARSET;
    EnumFontFamiliesExA(form.DeviceContext(), &any, AddFamily, reinterpret_cast<LPARAM>(&families),
                        0);
    if (families.failure) std::rethrow_exception(families.failure);
    std::vector<Text>& names = families.names;
    std::sort(names.begin(), names.end(),
              [](const Text& a, const Text& b) { return a.Utf16() < b.Utf16(); });
    names.erase(std::unique(names.begin(), names.end()), names.end());
    // Left are names that the code page cannot say and fonts with other outlines.
    std::erase_if(names, [](const Text& name) {
      GdiFace face(name, false, false);
      return CompareIgnoringCase(face.Name(), name) != 0 || !face.HasTrueTypeOutlines();
    });
    return std::move(families.names);
  }
};

}  // namespace

std::shared_ptr<SystemFonts> SystemFonts::OfThisSystem() { return std::make_shared<GdiFonts>(); }

}  // namespace folivar
