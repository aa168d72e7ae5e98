#include "folivar/fonts/FontFileFace.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

#include "folivar/base/Error.h"
#include "folivar/file/FileHandle.h"
#include "folivar/file/FileSource.h"
#include "folivar/file/FileSystem.h"
#include "folivar/fonts/FontMemory.h"
#include "folivar/fonts/FontPrograms.h"
#include "folivar/fonts/FontTableFields.h"
#include "folivar/fonts/TrueTypeFontTables.h"

namespace folivar {
namespace {

constexpr std::size_t kMostFaces = 4096;
// Of all fonts of a file together; no sound file comes near it.
constexpr std::uint64_t kLargestLists = std::uint64_t{64} << 20;

[[noreturn]] void Refuse(const Text& fileName, const char* what) {
  throw Error::InvalidFileFormat(std::string("damaged font: ") + what)
      .WithObject(FileNamed(fileName.Utf8()));
}

// A file that was replaced is another one. Raises the errors of FileSource.
std::string IdentityOf(const Text& fileName) {
  const std::optional<FileStamp> stamp = StampOf(fileName);
  std::string identity = fileName.Utf8() + '\0';
  if (!stamp) return identity + std::to_string(FileSource(fileName).Size()) + ' ';
  for (const std::uint64_t part :
       {stamp->size, static_cast<std::uint64_t>(stamp->time),
        static_cast<std::uint64_t>(stamp->changed), stamp->id.volume, stamp->id.file}) {
    identity += std::to_string(part) + ' ';
  }
  return identity;
}

struct Measures {
  OS2Table os2;
  HeadTable head;
  PCLTTable pclt;
  SystemFace::TextMetrics text;
  std::array<std::int32_t, 256> widths = {};
};

Measures Measure(const FontFileFace& face) {
  FileSource file(face.fileName);
  const TrueTypeFontTables tables(file, face.fileName.Utf8(), face.index);
  return {TableOf<OS2Table>(tables), TableOf<HeadTable>(tables), TableOf<PCLTTable>(tables),
          tables.Metrics(), tables.Widths()};
}

class FileFace final : public SystemFace {
 public:
  FileFace(FontFileFace face, bool isThickened)
      : face_(std::move(face)),
        identity_(IdentityOf(face_.fileName) + std::to_string(face_.index)),
        isThickened_(isThickened) {
    static FontMemory<Measures> memory(kMostFaces, [](const Measures&) { return std::size_t{1}; });
    measures_ = memory.Recall(identity_, [this] { return Measure(face_); });
  }

  Text Name() override { return face_.family; }
  Text FileName() override { return face_.fileName; }

  void ReadTable(std::string_view tag, std::span<unsigned char> out) override {
    const auto copyIfWanted = [&](const auto& table) {
      if (tag != table.kTag) return;
      std::copy_n(table.bytes.begin(), std::min(table.kSize, out.size()), out.begin());
    };
    copyIfWanted(measures_->os2);
    copyIfWanted(measures_->head);
    copyIfWanted(measures_->pclt);
  }

  std::shared_ptr<const std::string> Program() override {
    return SharedFontProgram(identity_, [this] {
      FileSource file(face_.fileName);
      return TrueTypeFontTables(file, face_.fileName.Utf8(), face_.index).Program();
    });
  }

  TextMetrics Metrics() override { return measures_->text; }

  std::array<std::int32_t, 256> Widths() override {
    auto widths = measures_->widths;
    if (isThickened_) {
      for (std::int32_t& width : widths) ++width;
    }
    return widths;
  }

 private:
  FontFileFace face_;
  std::string identity_;
  bool isThickened_;
  std::shared_ptr<const Measures> measures_;
};

std::vector<FontFileFace> ReadFaces(const Text& fileName) {
  std::vector<FontFileFace> faces;
  FileSource file(fileName);
  const std::uint32_t count = TrueTypeFontTables::FontCount(file, fileName.Utf8());
  std::uint64_t size = 0;
  for (std::uint32_t index = 0; index < count; ++index) {
    const TrueTypeFontTables tables(file, fileName.Utf8(), index);
    // A small file could name the same font again and again and keep us reading for hours, and so
    // could a large one of nothing but zeros, which takes no room on a disk.
    size += tables.OwnSize();
    if (size > file.Size()) Refuse(fileName, "its fonts overlap");
    if (size > kLargestLists) Refuse(fileName, "its lists of tables and names are too long");
    if (!tables.HasTrueTypeOutlines()) continue;
    faces.push_back({fileName, index, tables.FamilyName(), tables.IsBold(), tables.IsItalic(),
                     tables.Weight(), tables.Width()});
  }
  return faces;
}

}  // namespace

bool operator<(const FontFileFace& a, const FontFileFace& b) {
  const auto fields = [](const FontFileFace& face) {
    return std::tie(face.fileName.Utf16(), face.index, face.family.Utf16(), face.isBold,
                    face.isItalic, face.weight, face.width);
  };
  return fields(a) < fields(b);
}

std::vector<FontFileFace> FacesInFile(const Text& fileName) {
  using Faces = std::vector<FontFileFace>;
  static FontMemory<Faces> memory(
      kMostFaces, [](const Faces& faces) { return std::max<std::size_t>(faces.size(), 1); });
  return *memory.Recall(IdentityOf(fileName), [&] { return ReadFaces(fileName); });
}

bool IsNearer::operator()(const FontFileFace& a, const FontFileFace& b) const {
  constexpr int kNormalWeight = 400;
  constexpr int kBoldWeight = 700;
  constexpr int kNormalWidth = 5;
  const auto distance = [this](const FontFileFace& face) {
    return std::tuple(face.isItalic != isItalic,
                      std::abs(face.weight - (isBold ? kBoldWeight : kNormalWeight)),
                      std::abs(face.width - kNormalWidth), face.isBold != isBold);
  };
  return distance(a) < distance(b);
}

std::unique_ptr<SystemFace> OpenFace(const FontFileFace& face, bool isBold) {
  return std::make_unique<FileFace>(face, isBold && !face.isBold);
}

}  // namespace folivar
