#pragma once

#include <memory>
#include <string>

#include "folivar/base/Api.h"
#include "folivar/base/Text.h"
#include "folivar/drawing/ClipBox.h"
#include "folivar/file/XObject.h"
#include "folivar/page/Canvas.h"

namespace folivar {

// A drawing that is in the file once and on any number of pages: made by PDFTemplates::Add, drawn
// on with the members of Canvas and placed by PDFPage::DrawTemplate. It is drawn on before or after
// it is placed, and shows everywhere as it is when the document is saved; a template cannot be
// placed on a template. Coordinates are points from the template's own origin, which comes to lie
// where it is placed.
//
// Only what lies in the clip box shows. With AutoSizeClipBox the box grows by the points that each
// drawing call is given, as they are given: neither the thickness of lines nor a transformation
// counts. All edges are 0 at first, so the origin is always in a box that has only grown.
//
// DrawText grows the box from the top of the font's box on the first line to one leading below each
// line, and over the widest line; backslashes and parentheses count with the backslash that the
// file puts before them. DrawTextAligned grows it by the corners of its own box. A drawing call
// that fails does not grow it.
class FOLIVAR_API PDFTemplate final : public Canvas, public XObject {
 public:
  // The edges of the clip box; points, 0 at first.
  float Left() const { return clipBox_.left; }
  void SetLeft(float left) { clipBox_.left = left; }
  float Top() const { return clipBox_.top; }
  void SetTop(float top) { clipBox_.top = top; }
  // Setting a bottom above the top makes it the top, and the old top the bottom.
  float Bottom() const { return clipBox_.bottom; }
  void SetBottom(float bottom);
  // Setting a right edge below the left one makes it the left one, and the old left the right one.
  float Right() const { return clipBox_.right; }
  void SetRight(float right);

  // From edge to edge; points. Setting them moves the right edge or the top, and nothing is put in
  // order. Raise 6 beyond a single.
  float Width() const;
  void SetWidth(float width);
  float Height() const;
  void SetHeight(float height);

  // All four edges, kept as they are given.
  ClipBox GetClipBox() const { return clipBox_; }
  void SetClipBox(float left, float bottom, float right, float top);

  // Whether drawing grows the clip box; true at first.
  bool AutoSizeClipBox() const { return autoSizeClipBox_; }
  void SetAutoSizeClipBox(bool autoSize) { autoSizeClipBox_ = autoSize; }

  // Grows the clip box over every text box as it is now. With AutoSizeClipBox every save does so.
  // Deliberate: it does so before boxes that size themselves are sized. Raises 6 for an edge beyond
  // a single.
  void ExpandClipBoxToFitTextBoxes();

  // For the library

  PDFTemplate(const Internal&, const std::weak_ptr<PDFDocument>& document,
              std::shared_ptr<PDFFont> font, TextView key, std::string resourceName);

  void NumberObjects(const Internal&, ObjectNumbers& numbers);
  void WriteObjects(const Internal&, SaveFile& file);

 private:
  ClipBox* GrowingClipBox() override { return autoSizeClipBox_ ? &clipBox_ : nullptr; }

  ClipBox clipBox_;
  bool autoSizeClipBox_ = true;
};

}  // namespace folivar
