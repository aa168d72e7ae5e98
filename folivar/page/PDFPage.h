#pragma once

#include <cstdint>
#include <exception>
#include <memory>
#include <string_view>

#include "folivar/base/Api.h"
#include "folivar/base/Event.h"
#include "folivar/base/MemberKey.h"
#include "folivar/base/Tagged.h"
#include "folivar/base/Text.h"
#include "folivar/base/Value.h"
#include "folivar/drawing/ClipBox.h"
#include "folivar/drawing/PDFTextAlignment.h"
#include "folivar/file/ObjectWriter.h"

namespace folivar {

class Internal;
class PDFDocument;
class PDFFont;
class PDFGraphicsState;
class PDFHyperLinks;
class PDFImage;
class PDFPages;
class PDFTemplate;
class PDFText;
class PDFTextBoxes;
class Surface;

// One page: made by PDFPages::Add. Drawing calls append to the page's content at once, in the order
// of the calls; nothing is ever taken back. Coordinates are points from the bottom left corner.
//
// Sizes and coordinates are not checked against the page. A number that PDF cannot hold (not
// finite, or 2^31 and beyond) raises 6 where it would be written, and the drawing call that met it
// appends nothing.
class FOLIVAR_API PDFPage final : public Tagged, public ObjectWriter {
 public:
  PDFPage(const Internal&, std::weak_ptr<PDFPages> parent, std::weak_ptr<PDFDocument> document,
          std::shared_ptr<PDFFont> font, TextView key);

  // The key given to PDFPages::Add; empty without one.
  const Text& Key() const { return key_.AsText(); }

  // The font of the text calls from here on; the document's default font at first. Setting null
  // raises 91, a font of another document 5.
  std::shared_ptr<PDFFont> Font() const;
  void SetFont(std::shared_ptr<PDFFont> font);

  // Raises 91 when the document is gone.
  std::shared_ptr<PDFDocument> ParentDocument() const;

  // Points; 612 by 792 (US Letter) at first.
  float Width() const { return width_; }
  void SetWidth(float width) { width_ = width; }
  float Height() const { return height_; }
  void SetHeight(float height) { height_ = height; }
  void SetPageExtents(float width, float height);

  // What readers show of the page; edges in points, -1 each at first. A top below 0 means no clip
  // box: the whole page shows.
  void SetClipBox(float left, float bottom, float right, float top);
  void GetClipBox(float& left, float& bottom, float& right, float& top) const;

  // The same object each time.
  std::shared_ptr<PDFGraphicsState> GraphicsState() const { return graphicsState_; }

  // Made on first use; the same object each time. The boxes are drawn over everything else on the
  // page, whatever its graphics state.
  std::shared_ptr<PDFTextBoxes> TextBoxes();

  // Made on first use; the same object each time.
  std::shared_ptr<PDFHyperLinks> HyperLinks();

  // Raised by PDFPages::Remove and PDFPages::ReOrder, with this page, while it still is among the
  // pages. It is removed whatever handlers do or throw.
  Event<PDFPage&>& PageRemoved() { return pageRemoved_; }

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

  // The image that readers may show in place of the page; null at first, and null for none. Setting
  // an image of another document raises 5.
  std::shared_ptr<PDFImage> Thumbnail() const { return thumbnail_; }
  void SetThumbnail(std::shared_ptr<PDFImage> thumbnail);

  // Places a template with its origin at (x, y), any numbers; with either left out, at the origin.
  // A template of another document raises 5, null 91; a place that is no number 13 or, for Null,
  // 94.
  void DrawTemplate(const std::shared_ptr<PDFTemplate>& placed, const Value& x = {},
                    const Value& y = {});

  // The page's object number in the save in progress.
  std::int32_t ObjectNumber(const Internal&) const { return objectNumber_; }
  // Whether the page is one of `pages`, and has been numbered with them.
  bool IsNumberedIn(const Internal&, const std::weak_ptr<PDFPages>& pages) const;

  // For PDFPages, around the page's removal. The first exception that a handler threw is returned.
  // A page whose handlers are being called calls nobody.
  std::exception_ptr RaisePageRemoved(const Internal&);
  void ForgetObjectNumber(const Internal&) { objectNumber_ = 0; }

 private:
  // ObjectWriter
  void NumberObjects(ObjectNumbers& numbers) override;
  void WriteObjects(SaveFile& file) override;

  void BuildPageObject(PDFText& text) const;
  void AppendBoxes(PDFText& text) const;
  void WriteContentStream(SaveFile& file, std::string_view textBoxes) const;

  MemberKey key_;
  std::weak_ptr<PDFPages> parent_;
  std::shared_ptr<Surface> surface_;
  std::shared_ptr<PDFGraphicsState> graphicsState_;
  std::shared_ptr<PDFImage> thumbnail_;
  std::shared_ptr<PDFTextBoxes> textBoxes_;
  std::shared_ptr<PDFHyperLinks> hyperLinks_;
  Event<PDFPage&> pageRemoved_;
  float width_ = 612;
  float height_ = 792;
  ClipBox clipBox_{-1, -1, -1, -1};
  bool isBeingRemoved_ = false;
  std::int32_t objectNumber_ = 0;  // 0 before the first save, and once removed
  std::int32_t contentNumber_ = 0;
};

}  // namespace folivar
