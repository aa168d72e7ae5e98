#include "folivar/fonts/FontFiles.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "folivar/base/CaseFold.h"
#include "folivar/base/Error.h"
#include "folivar/base/InMember.h"
#include "folivar/file/FileHandle.h"
#include "folivar/file/FileSource.h"
#include "folivar/file/FileSystem.h"
#include "folivar/fonts/FontFileFace.h"
#include "folivar/fonts/TrueTypeFontTables.h"

namespace folivar {
namespace {

constexpr auto kExtensions = std::to_array<std::string_view>({".ttf", ".ttc", ".otf"});

// With "/" between folders, as everywhere but on Windows.
std::string GenericName(const Text& name) {
  std::string generic = name.Utf8();
#ifdef _WIN32
  std::replace(generic.begin(), generic.end(), '\\', '/');
#endif
  return generic;
}

// ".ttf" alone is a name, not an extension.
bool IsNamedLikeAFont(const Text& path) {
  std::string name = GenericName(path);
  name.erase(0, name.rfind('/') + 1);
  for (char& letter : name) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  }
  return std::any_of(kExtensions.begin(), kExtensions.end(), [&](std::string_view extension) {
    return name.size() > extension.size() && name.ends_with(extension);
  });
}

std::int32_t NumberOf(const std::error_code& error) {
  if (error == std::errc::permission_denied) return Error::kPermissionDenied;
  if (error == std::errc::no_such_file_or_directory) return Error::kPathNotFound;
  if (error == std::errc::not_a_directory) return Error::kPathNotFound;
  return Error::kPathFileAccess;
}

Error FolderError(const Text& folder, const std::error_code& error) {
  const std::string cause = "cannot be read: " + error.default_error_condition().message();
  return Error(NumberOf(error), cause).WithObject("folder '" + folder.Utf8() + "'");
}

// Appends the font files and the folders in a folder.
void ListFolder(const Text& folder, std::vector<Text>& files, std::vector<Text>& folders) {
  std::error_code error;
  for (FolderEntry& entry : EntriesOf(folder, error)) {
    if (entry.kind == FileKind::kFolder && !entry.isLink) folders.push_back(std::move(entry.name));
    if (entry.kind == FileKind::kFile && IsNamedLikeAFont(entry.name)) {
      files.push_back(std::move(entry.name));
    }
  }
  if (error) throw FolderError(folder, error);
}

[[noreturn]] void RaiseWithoutOutlines(const Text& name) {
  FileSource file(name);
  const bool isPostScript = TrueTypeFontTables(file, name.Utf8(), 0).HasPostScriptOutlines();
  throw Error::InvalidFileFormat(
      isPostScript ? "has PostScript outlines, not TrueType's; a .ttf file of the font would do"
                   : "has no TrueType outlines")
      .WithObject(FileNamed(name.Utf8()));
}

// An Error that the action throws becomes a sentence.
template <class Action>
void Try(std::vector<Text>& sentences, Action action) {
  try {
    action();
  } catch (const Error& error) {
    sentences.emplace_back(error.what());
  }
}

}  // namespace

FontFiles::FontFiles() = default;
FontFiles::~FontFiles() = default;

void FontFiles::AddFile(TextView fileName) {
  InMember("FontFiles.AddFile", [&] { Add(AbsoluteName(Text(fileName))); });
}

std::vector<Text> FontFiles::AddFolder(TextView folderName) {
  return InMember("FontFiles.AddFolder", [&] {
    std::vector<Text> leftOut;
    std::vector<Text> files;
    std::vector<Text> folders = {AbsoluteName(Text(folderName))};
    ListFolder(folders.front(), files, folders);
    // The list grows by the folders that are found.
    for (std::size_t i = 1; i < folders.size(); ++i) {
      Try(leftOut, [&] { ListFolder(Text(folders[i]), files, folders); });
    }
    // The system lists them in any order.
    std::sort(files.begin(), files.end(), [](const Text& left, const Text& right) {
      return GenericName(left) < GenericName(right);
    });
    for (const Text& file : files) Try(leftOut, [&] { Add(file); });
    return leftOut;
  });
}

void FontFiles::Add(const Text& name) {
  std::vector<FontFileFace> faces = FacesInFile(name);
  if (faces.empty()) RaiseWithoutOutlines(name);
  if (std::all_of(faces.begin(), faces.end(),
                  [](const FontFileFace& face) { return face.family.IsEmpty(); })) {
    throw Error::InvalidFileFormat("has no name of its family that can be read")
        .WithObject(FileNamed(name.Utf8()));
  }
  std::set<FontFileFace> added;
  std::multimap<std::u16string, const FontFileFace*> families;
  const std::lock_guard lock(mutex_);
  for (FontFileFace& face : faces) {
    if (face.family.IsEmpty() || faces_.contains(face)) continue;
    const FontFileFace& kept = *added.insert(std::move(face)).first;
    families.emplace(FoldCase(kept.family), &kept);
  }
  faces_.merge(added);
  families_.merge(families);
}

std::unique_ptr<SystemFace> FontFiles::SelectFace(const Text& name, bool isBold, bool isItalic) {
  const FontFileFace* face = NearestFace(name, isBold, isItalic);
  return face ? OpenFace(*face, isBold) : nullptr;
}

// Null for a family that is not here.
const FontFileFace* FontFiles::NearestFace(const Text& name, bool isBold, bool isItalic) {
  const std::lock_guard lock(mutex_);
  const auto [first, last] = families_.equal_range(FoldCase(name));
  const auto nearest = std::min_element(
      first, last, [nearer = IsNearer{isBold, isItalic}](const auto& a, const auto& b) {
        return nearer(*a.second, *b.second);
      });
  return nearest == last ? nullptr : nearest->second;
}

bool FontFiles::IsEmpty(const Internal&) {
  const std::lock_guard lock(mutex_);
  return faces_.empty();
}

std::vector<Text> FontFiles::FileNames(const Internal&) {
  std::set<std::u16string> names;
  const std::lock_guard lock(mutex_);
  for (const FontFileFace& face : faces_) names.insert(face.fileName.Utf16());
  return {names.begin(), names.end()};
}

std::vector<Text> FontFiles::FaceNames() {
  std::vector<Text> names;
  const std::lock_guard lock(mutex_);
  for (const auto& [family, face] : families_) names.push_back(face->family);
  return names;
}

}  // namespace folivar
