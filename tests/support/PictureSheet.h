#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "folivar/folivar.h"
#include "tests/support/Pixels.h"

namespace folivar::test {

// A document whose one page shows pictures beside each other, a point for each pixel: what becomes
// of them is asked of other people's programs.
class PictureSheet {
 public:
  // Pictures of at most this size.
  explicit PictureSheet(std::size_t largest) : largest_(largest) {}

  void Add(const std::filesystem::path& file);

  // Saves the document and looks at it. A file that is not sound by the rules of PDF does not end
  // in ".pdf".
  void SaveTo(std::string_view name);

  const std::filesystem::path& Path() const { return path_; }

  // The picture added as number `index`, from 0, as drawn by MuPDF, poppler and Ghostscript.
  std::vector<Pixels> Drawn(std::size_t index) const;

 private:
  struct Place {
    std::size_t left;
    std::size_t top;
    std::size_t width;
    std::size_t height;
  };

  std::size_t largest_;
  std::shared_ptr<PDFDocument> document_ = PDFDocument::Create();
  std::shared_ptr<PDFPage> page_ = document_->Pages()->Add();
  std::vector<std::shared_ptr<PDFImage>> images_;
  std::vector<Place> places_;
  std::filesystem::path path_;
  std::vector<Pixels> pages_;
};

}  // namespace folivar::test
