#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "folivar/base/Api.h"
#include "folivar/base/MemberKey.h"
#include "folivar/base/Text.h"
#include "folivar/base/Value.h"
#include "folivar/drawing/ClipBox.h"
#include "folivar/drawing/PDFTextAlignment.h"
#include "folivar/file/ObjectWriter.h"
#include "folivar/file/XObject.h"

namespace folivar {

class Internal;
class PDFDocument;
class PDFFont;
class PDFGraphicsState;
class PDFImage;
class PDFTextBoxes;
class Surface;

// A drawing that is in the file once and on any number of pages: made by PDFTemplates::Add, placed
// by PDFPage::DrawTemplate. It is drawn on like a page, before or after it is placed, and shows
// everywhere as it is when the document is saved; a template cannot be placed on a template.
// Coordinates are points from the template's own origin, which comes to lie where it is placed.
//
// Only what lies in the clip box shows. With AutoSizeClipBox the box grows by the points that each
// drawing call is given, as they are given: neither the thickness of lines nor a transformation
// counts. All edges are 0 at first, so the origin is always in a box that has only grown.
//
// Coordinates are not checked. A number that PDF cannot hold (not finite, or 2^31 and beyond)
// raises 6 where it would be written, and so does a sum beyond a single; the drawing call that met
// it draws nothing and does not grow the box.
class FOLIVAR_API PDFTemplate final : public XObject, public ObjectWriter {
 public:
  PDFTemplate(const Internal&, const std::weak_ptr<PDFDocument>& document,
              std::shared_ptr<PDFFont> font, TextView key, std::string resourceName);

  // The key given to PDFTemplates::Add; empty without one.
  const Text& Key() const override { return key_.AsText(); }

  // The font of the text calls from here on; the document's default font at first. Setting null
  // raises 91, a font of another document 5.
  std::shared_ptr<PDFFont> Font() const;
  void SetFont(std::shared_ptr<PDFFont> font);

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
  void SetClipBox(float left, float bottom, float right, float top);
  void GetClipBox(float& left, float& bottom, float& right, float& top) const;

  // Whether drawing grows the clip box; true at first.
  bool AutoSizeClipBox() const { return autoSizeClipBox_; }
  void SetAutoSizeClipBox(bool autoSize) { autoSizeClipBox_ = autoSize; }

  // The same object each time.
  std::shared_ptr<PDFGraphicsState> GraphicsState() const { return graphicsState_; }

  // Made on first use; the same object each time. The boxes are drawn over everything else on the
  // template, whatever its graphics state.
  std::shared_ptr<PDFTextBoxes> TextBoxes();

  // Grows the clip box over every text box as it is now. With AutoSizeClipBox every save does so.
  // Deliberate: it does so before boxes that size themselves are sized. Raises 6 for an edge beyond
  // a single.
  void ExpandClipBoxToFitTextBoxes();

  // Draws text with its first baseline starting at (x, y). "\n", "\r\n" and "\r" begin a new line,
  // one leading further down. Underline and strikeout of the font are drawn as lines, which move
  // the pen. Grows the box from the top of the font's box on the first line to one leading below
  // each line, and over the widest line; backslashes and parentheses count with the backslash that
  // the file puts before them.
  void DrawText(TextView text, float x, float y);

  // Draws text into a box, each line and all lines aligned in it; a negative width or height
  // extends the box to the left or downwards. Lines are neither wrapped nor clipped, underline and
  // strikeout not drawn. An empty text draws nothing. Grows the clip box by the corners of the box.
  void DrawTextAligned(TextView text, float left, float bottom, float width, float height,
                       PDFHorzTextAlignment horzAlignment = htaLeft,
                       PDFVertTextAlignment vertAlignment = vtaBaseline);

  // Strokes a line and moves the pen to its end.
  void DrawLine(float x1, float y1, float x2, float y2);
  // From the pen, which starts at (0, 0); a stroke of its own, not joined to the one before.
  void DrawLineTo(float x, float y);

  void SetCurPos(float x, float y);
  void GetCurPos(float& x, float& y) const;

  // Strokes and/or fills a rectangle and moves the pen to the corner opposite (left, bottom).
  void DrawRect(float left, float bottom, float width, float height, bool stroke = true,
                bool fill = false);

  // Draws an image with its lower left corner at (x, y), `width` by `height` points large; a
  // measure left out is the image's in pixels, as points. To maintain the aspect ratio, the image
  // becomes as large as fits into these measures; otherwise it is stretched to them. Raises 91 for
  // null, 5 for an image of another document, 11 for the ratio of an image without pixels (no
  // file yet, or a JPEG whose header says 0), 13 for a measure that is no number and 94 for Null.
  void DrawImage(const std::shared_ptr<PDFImage>& image, float x, float y, const Value& width = {},
                 const Value& height = {}, bool maintainAspectRatio = true);

 private:
  // XObject
  const std::string& ResourceName(const Internal&) const override { return resourceName_; }
  std::int32_t ObjectNumber(const Internal&) const override { return objectNumber_; }
  const std::weak_ptr<PDFDocument>& ParentDocument(const Internal&) const override;
  // ObjectWriter
  void NumberObjects(ObjectNumbers& numbers) override;
  void WriteObjects(SaveFile& file) override;

  ClipBox* GrowingClipBox() { return autoSizeClipBox_ ? &clipBox_ : nullptr; }

  MemberKey key_;
  std::string resourceName_;
  std::shared_ptr<Surface> surface_;
  std::shared_ptr<PDFGraphicsState> graphicsState_;
  std::shared_ptr<PDFTextBoxes> textBoxes_;
  ClipBox clipBox_{0, 0, 0, 0};
  bool autoSizeClipBox_ = true;
  std::int32_t objectNumber_ = 0;
};

}  // namespace folivar
