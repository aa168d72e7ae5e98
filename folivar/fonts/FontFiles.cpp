#include "folivar/fonts/FontFiles.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "folivar/document/CaseFold.h"
#include "folivar/document/Error.h"
#include "folivar/document/FileHandle.h"
#include "folivar/document/InMember.h"
#include "folivar/fonts/FontFileFace.h"

namespace folivar {
namespace {

constexpr auto kExtensions = std::to_array<std::u8string_view>({u8".ttf", u8".ttc", u8".otf"});

bool IsNamedLikeAFont(const std::filesystem::path& path) {
  std::u8string extension = path.extension().u8string();
  for (char8_t& letter : extension) {
    if (letter >= u8'A' && letter <= u8'Z') letter = static_cast<char8_t>(letter - u8'A' + u8'a');
  }
  return std::find(kExtensions.begin(), kExtensions.end(), extension) != kExtensions.end();
}

// The file or folder, wherever the working folder will be. Raises 52 for what cannot be a name.
std::filesystem::path PathIn(TextView name) {
  const Text text(name);
  CheckFileName(text);
  return std::filesystem::absolute(PathOf(text));
}

// A name that is not UTF-8, which some systems allow, is shown as far as it is ASCII; the file then
// is not found.
Text NameOf(const std::filesystem::path& path) {
  std::u8string name = path.u8string();
  try {
    return Text(name);
  } catch (const Error&) {
    std::replace_if(
        name.begin(), name.end(), [](char8_t byte) { return byte >= 0x80; }, u8'?');
    return Text(name);
  }
}

Error FolderError(const std::filesystem::path& folder, const std::error_code& error) {
  const std::string text = "Cannot read folder '" + NameOf(folder).Utf8() +
                           "': " + error.default_error_condition().message();
  if (error == std::errc::permission_denied) return Error::PermissionDenied(text);
  if (error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory) {
    return Error::PathNotFound(text);
  }
  return Error::PathFileAccess(text);
}

// Appends the font files and the folders in a folder.
void ListFolder(const std::filesystem::path& folder, std::vector<std::filesystem::path>& files,
                std::vector<std::filesystem::path>& folders) {
  std::error_code error;
  std::filesystem::directory_iterator entry(folder, error);
  for (; !error && entry != end(entry); entry.increment(error)) {
    std::error_code ignored;
    if (entry->is_directory(ignored)) {
      if (!entry->is_symlink(ignored)) folders.push_back(entry->path());
    } else if (entry->is_regular_file(ignored) && IsNamedLikeAFont(entry->path())) {
      files.push_back(entry->path());
    }
  }
  if (error) throw FolderError(folder, error);
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
  InMember("FontFiles.AddFile", [&] { Add(PathIn(fileName)); });
}

std::vector<Text> FontFiles::AddFolder(TextView folderName) {
  return InMember("FontFiles.AddFolder", [&] {
    std::vector<Text> leftOut;
    std::vector<std::filesystem::path> files;
    std::vector<std::filesystem::path> folders = {PathIn(folderName)};
    ListFolder(folders.front(), files, folders);
    // The list grows by the folders that are found.
    for (std::size_t i = 1; i < folders.size(); ++i) {
      Try(leftOut, [&] { ListFolder(std::filesystem::path(folders[i]), files, folders); });
    }
    // The system lists them in any order; "/" separates folders everywhere.
    std::sort(files.begin(), files.end(), [](const auto& left, const auto& right) {
      return left.generic_u8string() < right.generic_u8string();
    });
    for (const std::filesystem::path& file : files) Try(leftOut, [&] { Add(file); });
    return leftOut;
  });
}

void FontFiles::Add(const std::filesystem::path& path) {
  const Text name = NameOf(path);
  std::multimap<std::u16string, FontFileFace> faces;
  for (FontFileFace& face : FacesInFile(name)) {
    faces.emplace(FoldCase(face.family), std::move(face));
  }
  if (faces.empty()) {
    throw Error::InvalidFileFormat("Font file '" + name.Utf8() + "' has no TrueType outlines");
  }
  const std::lock_guard lock(mutex_);
  faces_.merge(faces);
}

std::unique_ptr<SystemFace> FontFiles::SelectFace(const Text& name, bool isBold, bool isItalic) {
  std::vector<FontFileFace> family;
  {
    const std::lock_guard lock(mutex_);
    const auto [first, last] = faces_.equal_range(FoldCase(name));
    for (auto face = first; face != last; ++face) family.push_back(face->second);
  }
  return family.empty() ? nullptr : OpenFace(NearestStyle(family, isBold, isItalic), isBold);
}

std::vector<Text> FontFiles::FaceNames() {
  std::vector<Text> names;
  const std::lock_guard lock(mutex_);
  for (const auto& [family, face] : faces_) names.push_back(face.family);
  return names;
}

}  // namespace folivar
