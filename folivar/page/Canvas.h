#pragma once

#include <memory>
#include <string_view>

#include "folivar/base/Api.h"
#include "folivar/base/Tagged.h"
#include "folivar/base/Text.h"
#include "folivar/base/Value.h"
#include "folivar/drawing/AspectRatio.h"
#include "folivar/drawing/PDFTextAlignment.h"
#include "folivar/drawing/Paint.h"
#include "folivar/drawing/Point.h"

// A macro of windows.h for its own DrawTextA, under which programs would look for the member.
#undef DrawText

namespace folivar {

class Internal;
class PDFDocument;
class PDFFont;
class PDFGraphicsState;
class PDFImage;
class PDFText;
class PDFTextBoxes;
class SaveFile;
class Surface;
struct ClipBox;

// What pages and templates have in common: they are drawn on. Drawing calls append to the content
// at once, in the order of the calls; nothing is ever taken back. Coordinates are points from the
// bottom left corner of a page, or from a template's own origin.
//
// Coordinates are not checked. A number that PDF cannot hold (not finite, or 2^31 and beyond)
// raises 6 where it would be written, and so does a sum beyond a single; the drawing call that met
// it draws nothing.
class FOLIVAR_API Canvas : public Tagged {
 public:
  // The font of the text calls from here on; the document's default font at first. Setting null
  // raises 91, a font of another document 5.
  std::shared_ptr<PDFFont> Font() const;
  void SetFont(std::shared_ptr<PDFFont> font);

  // The same object each time.
  std::shared_ptr<PDFGraphicsState> GraphicsState() const { return graphicsState_; }

  // Made on first use; the same object each time. The boxes are drawn over everything else on the
  // page or template, whatever its graphics state.
  std::shared_ptr<PDFTextBoxes> TextBoxes();

  // Draws text with its first baseline starting at (x, y). "\n", "\r\n" and "\r" begin a new line,
  // one leading further down. Underline and strikeout of the font are drawn as lines, which move
  // the pen.
  void DrawText(TextView text, float x, float y);

  // Draws text into a box, each line and all lines aligned in it; a negative width or height
  // extends the box to the left or downwards. Lines are neither wrapped nor clipped, underline and
  // strikeout not drawn. An empty text draws nothing.
  void DrawTextAligned(TextView text, float left, float bottom, float width, float height,
                       PDFHorzTextAlignment horzAlignment = htaLeft,
                       PDFVertTextAlignment vertAlignment = vtaBaseline);

  // Strokes a line and moves the pen to its end.
  void DrawLine(float x1, float y1, float x2, float y2);
  // From the pen, which starts at (0, 0); a stroke of its own, not joined to the one before.
  void DrawLineTo(float x, float y);

  // The pen.
  Point GetCurPos() const;
  void SetCurPos(float x, float y);

  // Strokes and/or fills a rectangle and moves the pen to the corner opposite (left, bottom).
  void DrawRect(float left, float bottom, float width, float height, Paint paint = Paint::kStroke);

  // Draws an image with its lower left corner at (x, y), `width` by `height` points large; a
  // measure left out is the image's in pixels, as points. To keep the aspect ratio, the image
  // becomes as large as fits into these measures; otherwise it is stretched to them. Raises 91 for
  // null, 5 for an image of another document, 11 for the ratio of an image without pixels (no
  // file yet, or a JPEG whose header says 0), 13 for a measure that is no number and 94 for Null.
  void DrawImage(const std::shared_ptr<PDFImage>& image, float x, float y, const Value& width = {},
                 const Value& height = {}, AspectRatio aspectRatio = AspectRatio::kKeep);

 protected:
  // `className` stands in error texts, for example "PDFPage"; a literal.
  Canvas(const Internal&, const char* className, std::weak_ptr<PDFDocument> document,
         std::shared_ptr<PDFFont> font);
  ~Canvas() override;

  Surface& TheSurface() const { return *surface_; }
  // Null before first use.
  const PDFTextBoxes* MadeTextBoxes() const { return textBoxes_.get(); }

  // Ends the open object's dictionary with the length of the content, and puts the content behind
  // it, with what draws the text boxes.
  void WriteContentStream(SaveFile& file, PDFText& dictionary, std::string_view textBoxes) const;

 private:
  // The box that drawing grows; null for none.
  virtual ClipBox* GrowingClipBox() { return nullptr; }

  template <class Operation>
  void Draw(const char* member, Operation operation);

  const char* className_;
  std::shared_ptr<Surface> surface_;
  std::shared_ptr<PDFGraphicsState> graphicsState_;
  std::shared_ptr<PDFTextBoxes> textBoxes_;
};

}  // namespace folivar
