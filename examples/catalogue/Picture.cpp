#include "Picture.h"

#include <cstddef>
#include <stdexcept>
#include <string_view>

#include "common/CsvTable.h"
#include "common/InputError.h"
#include "common/InputText.h"

namespace {

enum Column : std::size_t { kPicture, kTitle, kCaption };

std::string PathIn(const std::string& folder, std::string_view file) {
  return folder + (folder.ends_with('/') ? "" : "/") + std::string(file);
}

// The library's errors name the file.
void Load(folivar::PDFImage& image, const std::string& file) {
  image.SetFileName(file);
  if (image.Width() == 0 || image.Height() == 0) {
    throw std::runtime_error("Image file '" + file + "' has no pixels");
  }
}

}  // namespace

std::vector<Picture> ReadPictures(const std::string& captions, const std::string& folder,
                                  folivar::PDFDocument& document) {
  CsvTable table(captions, {"picture", "title", "caption"});
  std::vector<Picture> pictures;
  while (const auto record = table.Next()) {
    const auto& fields = record->fields;
    const std::string_view file = Trimmed(fields[kPicture]);
    if (file.empty()) throw InputError(captions, record->line, "no picture is named");
    const auto image = document.Images()->Add();
    try {
      Load(*image, PathIn(folder, file));
    } catch (const std::runtime_error& error) {
      throw InputError(captions, record->line, error.what());
    }
    pictures.push_back({image, SingleLine(fields[kTitle]), SingleLine(fields[kCaption])});
  }
  if (pictures.empty()) throw InputError(captions, table.Line(), "no picture is listed");
  return pictures;
}
