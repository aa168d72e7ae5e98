#pragma once

#include <memory>

#include "folivar/document/PDFResourceDictionary.h"
#include "folivar/document/PDFText.h"
#include "folivar/fonts/PDFFont.h"

namespace folivar {

// What is drawn on: the content of one page, the resources it uses, its current font and its pen.
// Shared by the page and its graphics state, so that either may outlive the other.
class Surface {
 public:
  // Makes `font` current and lists it among the resources. Raises 91 for null and 5 for a font of
  // another document: its face would be missing in the file.
  void SetFont(std::shared_ptr<PDFFont> font);
  const std::shared_ptr<PDFFont>& Font() const { return font_; }

  // Appends one piece: all parts or, when one cannot be written, none.
  template <class... Parts>
  void AppendContent(const Parts&... parts) {
    content_.Append(parts...);
  }
  // For operations of several pieces, and for the save.
  PDFText& Content() { return content_; }

  PDFResourceDictionary& ResourceDictionary() { return resources_; }

  // The pen: where DrawLineTo starts. 0, 0 at first.
  struct Point {
    float x = 0;
    float y = 0;
  };
  Point CurPos() const { return curPos_; }
  void SetCurPos(Point position) { curPos_ = position; }

 private:
  PDFText content_;
  PDFResourceDictionary resources_;
  std::shared_ptr<PDFFont> font_;
  Point curPos_;
};

}  // namespace folivar
