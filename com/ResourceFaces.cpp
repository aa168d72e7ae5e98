// The metrics of the standard faces, which the component carries as resources: their names are
// string 101, and under each name there is a resource of type CUSTOM.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "com/ComPrefix.h"
#include "com/Module.h"
#include "folivar/base/Error.h"
#include "folivar/fonts/StandardFaceFiles.h"

namespace folivar::com {
namespace {

constexpr UINT kNames = 101;
constexpr std::int32_t kResourceNotFound = 326;

// Names are ASCII.
std::string ReadNames() {
  const wchar_t* text = nullptr;
  const int length = LoadStringW(Module::Handle(), kNames, reinterpret_cast<wchar_t*>(&text), 0);
  std::string names;
  for (int i = 0; i < length; ++i) names += static_cast<char>(text[i]);
  return names;
}

std::string_view ReadFace(const std::string& name) {
  HRSRC found = FindResourceA(Module::Handle(), name.c_str(), "CUSTOM");
  HGLOBAL loaded = found == nullptr ? nullptr : LoadResource(Module::Handle(), found);
  const void* bytes = loaded == nullptr ? nullptr : LockResource(loaded);
  if (bytes == nullptr) {
    throw Error(kResourceNotFound, "The metrics of the font '" + name + "' are not in Folivar.dll");
  }
  return {static_cast<const char*>(bytes), SizeofResource(Module::Handle(), found)};
}

class Faces {
 public:
  Faces() : names_(ReadNames()) {
    std::size_t start = 0;
    for (std::size_t i = 0; i < kStandardFaceCount; ++i) {
      const std::size_t end = std::min(names_.find(';', start), names_.size());
      const auto name = std::string_view(names_).substr(start, end - start);
      texts_[i] = ReadFace(std::string(name));
      files_[i] = {name, &texts_[i], 1};
      start = std::min(end + 1, names_.size());
    }
  }
  Faces(const Faces&) = delete;
  Faces& operator=(const Faces&) = delete;

  const std::array<StandardFaceFile, kStandardFaceCount>& Files() const { return files_; }

 private:
  std::string names_;
  std::array<std::string_view, kStandardFaceCount> texts_;
  std::array<StandardFaceFile, kStandardFaceCount> files_;
};

}  // namespace
}  // namespace folivar::com

namespace folivar {

std::span<const StandardFaceFile, kStandardFaceCount> StandardFaceFiles() {
  static const com::Faces faces;
  return faces.Files();
}

}  // namespace folivar
