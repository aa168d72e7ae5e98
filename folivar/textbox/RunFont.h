#pragma once

#include <memory>
#include <utility>

#include "folivar/fonts/PDFFont.h"

namespace folivar {

// The font of a run. Every run has a font object of its own, unless a host has set one font for
// several. But nobody can tell objects apart that are alike, never change and are not seen by a
// host; so clones share one object, and a run gets its own when it is changed or handed out.
class RunFont {
 public:
  RunFont() = default;
  // A font that the host has too: what either changes shows on both sides.
  explicit RunFont(std::shared_ptr<PDFFont> font) : font_(std::move(font)), hostHasIt_(true) {}
  // A font like this one, and of its own.
  static RunFont CloneOf(const PDFFont& font);

  const PDFFont& operator*() const { return *font_; }
  const PDFFont* operator->() const { return font_.get(); }

  RunFont Clone() const { return hostHasIt_ ? CloneOf(*font_) : *this; }

  // For changing it.
  PDFFont& Own() {
    StopSharing();
    return *font_;
  }

  // To the host; the same object each time.
  const std::shared_ptr<PDFFont>& HandOut() {
    StopSharing();
    hostHasIt_ = true;
    return font_;
  }

 private:
  // Leaves the object to the clones that share it. One that the host has is shared by runs only
  // because the host set it for them, and stays shared.
  void StopSharing() {
    const bool hasClones = !hostHasIt_ && font_.use_count() > 1;
    if (hasClones) font_ = font_->Clone();
  }

  std::shared_ptr<PDFFont> font_;
  bool hostHasIt_ = false;
};

}  // namespace folivar
