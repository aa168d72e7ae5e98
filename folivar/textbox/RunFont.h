#pragma once

#include <memory>
#include <utility>

#include "folivar/fonts/PDFFont.h"

namespace folivar {

// The font of a run. Every run has a font object of its own, unless a host has set one font for
// several; but as long as no host has seen the objects, and they are alike, one stands for all of
// them, and clones cost nothing.
class RunFont {
 public:
  RunFont() = default;
  // A font that the host has too: what either changes shows on both sides.
  explicit RunFont(std::shared_ptr<PDFFont> font) : font_(std::move(font)), isSeen_(true) {}
  // A font like this one, and of its own.
  static RunFont CloneOf(const PDFFont& font);

  const PDFFont& operator*() const { return *font_; }
  const PDFFont* operator->() const { return font_.get(); }

  RunFont Clone() const { return isSeen_ ? CloneOf(*font_) : *this; }

  // For changing it.
  PDFFont& Own() {
    Separate();
    return *font_;
  }

  // For handing it to the host; the same object each time.
  const std::shared_ptr<PDFFont>& Seen() const {
    Separate();
    isSeen_ = true;
    return font_;
  }

 private:
  // Makes the object that so far another one has stood for.
  void Separate() const {
    if (!isSeen_ && font_.use_count() > 1) font_ = font_->Clone();
  }

  mutable std::shared_ptr<PDFFont> font_;
  mutable bool isSeen_ = false;
};

}  // namespace folivar
