#include "tests/support/PictureSheet.h"

#include "tests/support/Picture.h"
#include "tests/support/TestFiles.h"

namespace folivar::test {
namespace {

constexpr std::size_t kColumns = 10;
// Each pixel is drawn as so many dots in a square, of which the middle one counts: programs smooth
// pictures that they draw in nearly their own size.
constexpr std::size_t kDots = 4;

}  // namespace

void PictureSheet::Add(const std::filesystem::path& file) {
  images_.push_back(document_->Images()->Add());
  images_.back()->SetFileName(file.u8string());
}

void PictureSheet::SaveTo(std::string_view name) {
  const std::size_t distance = largest_ + 1;
  const std::size_t rows = (images_.size() + kColumns - 1) / kColumns;
  const std::size_t height = rows * distance;
  page_->SetPageExtents(static_cast<float>(kColumns * distance), static_cast<float>(height));
  for (const auto& image : images_) {
    const std::size_t number = places_.size();
    const Place place{number % kColumns * distance, number / kColumns * distance,
                      static_cast<std::size_t>(image->Width()),
                      static_cast<std::size_t>(image->Height())};
    page_->DrawImage(image, static_cast<float>(place.left),
                     static_cast<float>(height - place.top - place.height));
    places_.push_back(place);
  }
  path_ = OutputPath(name);
  document_->SavePDFFile(path_.u8string());
  for (const Picture& picture : PicturesOf(path_, 72 * kDots)) {
    pages_.push_back(picture.pixels);
  }
}

std::vector<Pixels> PictureSheet::Drawn(std::size_t index) const {
  const Place& place = places_[index];
  std::vector<Pixels> drawn;
  for (const Pixels& page : pages_) {
    Pixels& picture = drawn.emplace_back(Pixels{place.width, place.height});
    for (std::size_t y = 0; y < place.height; ++y) {
      for (std::size_t x = 0; x < place.width; ++x) {
        picture.rgb +=
            page.At((place.left + x) * kDots + kDots / 2, (place.top + y) * kDots + kDots / 2);
      }
    }
  }
  return drawn;
}

}  // namespace folivar::test
