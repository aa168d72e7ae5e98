#include "folivar/fonts/FontFileFace.h"

#include <algorithm>
#include <array>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "folivar/base/Error.h"
#include "folivar/file/FileHandle.h"
#include "folivar/file/FileSource.h"
#include "folivar/file/FileSystem.h"
#include "folivar/fonts/FontPrograms.h"
#include "folivar/fonts/TrueTypeFontTables.h"

namespace folivar {
namespace {

// What the process has read of font files, a little of each. A file that was replaced is another
// one. From any thread.
template <class Known>
class Memory {
 public:
  template <class Read>
  std::shared_ptr<const Known> Recall(const std::string& identity, Read read) {
    {
      const std::lock_guard lock(mutex_);
      const auto found = known_.find(identity);
      if (found != known_.end()) return found->second;
    }
    auto known = std::make_shared<const Known>(read());
    const std::lock_guard lock(mutex_);
    return known_.try_emplace(identity, std::move(known)).first->second;
  }

 private:
  std::mutex mutex_;
  std::map<std::string, std::shared_ptr<const Known>> known_;
};

// Raises the errors of FileSource.
std::string IdentityOf(const Text& fileName) {
  const std::optional<FileStamp> stamp = StampOf(fileName);
  if (!stamp) return std::to_string(FileSource(fileName).Size());
  return fileName.Utf8() + '\0' + std::to_string(stamp->size) + ' ' + std::to_string(stamp->time);
}

struct Measures {
  std::array<unsigned char, 86> os2 = {};
  std::array<unsigned char, 54> head = {};
  std::array<unsigned char, 54> pclt = {};
  SystemFace::TextMetrics text;
  std::array<std::int32_t, 256> widths = {};
};

Measures Measure(const FontFileFace& face) {
  FileSource file(face.fileName);
  const TrueTypeFontTables tables(file, face.fileName.Utf8(), face.index);
  Measures measures;
  tables.ReadTable("OS/2", measures.os2);
  tables.ReadTable("head", measures.head);
  tables.ReadTable("PCLT", measures.pclt);
  measures.text = tables.Metrics();
  measures.widths = tables.Widths();
  return measures;
}

class FileFace final : public SystemFace {
 public:
  FileFace(FontFileFace face, bool isThickened)
      : face_(std::move(face)),
        identity_(IdentityOf(face_.fileName) + ' ' + std::to_string(face_.index)),
        isThickened_(isThickened) {
    static Memory<Measures> memory;
    measures_ = memory.Recall(identity_, [this] { return Measure(face_); });
  }

  Text Name() override { return face_.family; }

  void ReadTable(std::string_view tag, std::span<unsigned char> out) override {
    const auto copy = [out](std::span<const unsigned char> table) {
      std::copy_n(table.begin(), std::min(table.size(), out.size()), out.begin());
    };
    if (tag == "OS/2") copy(measures_->os2);
    if (tag == "head") copy(measures_->head);
    if (tag == "PCLT") copy(measures_->pclt);
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
    // A small file could name the same font a million times and keep us reading for hours.
    size += tables.OwnSize();
    if (size > file.Size()) {
      throw Error::InvalidFileFormat("damaged font: its fonts overlap")
          .WithObject(FileNamed(fileName.Utf8()));
    }
    if (!tables.HasTrueTypeOutlines()) continue;
    faces.push_back({fileName, index, tables.FamilyName(), tables.IsBold(), tables.IsItalic()});
  }
  return faces;
}

}  // namespace

std::vector<FontFileFace> FacesInFile(const Text& fileName) {
  static Memory<std::vector<FontFileFace>> memory;
  return *memory.Recall(IdentityOf(fileName), [&] { return ReadFaces(fileName); });
}

const FontFileFace& NearestStyle(const std::vector<FontFileFace>& faces, bool isBold,
                                 bool isItalic) {
  const auto distance = [=](const FontFileFace& face) {
    return 2 * (face.isItalic != isItalic) + (face.isBold != isBold);
  };
  return *std::min_element(
      faces.begin(), faces.end(),
      [&](const FontFileFace& a, const FontFileFace& b) { return distance(a) < distance(b); });
}

std::unique_ptr<SystemFace> OpenFace(const FontFileFace& face, bool isBold) {
  return std::make_unique<FileFace>(face, isBold && !face.isBold);
}

}  // namespace folivar
