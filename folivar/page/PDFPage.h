#pragma once

#include <exception>
#include <memory>

#include "folivar/base/Api.h"
#include "folivar/base/Event.h"
#include "folivar/base/MemberKey.h"
#include "folivar/base/Text.h"
#include "folivar/base/Value.h"
#include "folivar/drawing/ClipBox.h"
#include "folivar/file/Reference.h"
#include "folivar/page/Canvas.h"

namespace folivar {

class ObjectNumbers;
class PDFHyperLinks;
class PDFPages;
class PDFTemplate;

// One page: made by PDFPages::Add, and drawn on with the members of Canvas. Coordinates are points
// from the bottom left corner; sizes and coordinates are not checked against the page.
class FOLIVAR_API PDFPage final : public Canvas {
 public:
  // The key given to PDFPages::Add; empty without one.
  const Text& Key() const { return key_.AsText(); }

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
  ClipBox GetClipBox() const { return clipBox_; }
  void SetClipBox(float left, float bottom, float right, float top);

  // Made on first use; the same object each time.
  std::shared_ptr<PDFHyperLinks> HyperLinks();

  // Raised by PDFPages::Remove and PDFPages::ReOrder, with this page, while it still is among the
  // pages. It is removed whatever handlers do or throw.
  Event<PDFPage&>& PageRemoved() { return pageRemoved_; }

  // The image that readers may show in place of the page; null at first, and null for none. Setting
  // an image of another document raises 5.
  std::shared_ptr<PDFImage> Thumbnail() const { return thumbnail_; }
  void SetThumbnail(std::shared_ptr<PDFImage> thumbnail);

  // Places a template with its origin at (x, y), any numbers; with either left out, at the origin.
  // A template of another document raises 5, null 91; a place that is no number 13 or, for Null,
  // 94.
  void DrawTemplate(const std::shared_ptr<PDFTemplate>& placed, const Value& x = {},
                    const Value& y = {});

  // For the library

  PDFPage(const Internal&, std::weak_ptr<PDFPages> parent, std::weak_ptr<PDFDocument> document,
          std::shared_ptr<PDFFont> font, TextView key);

  void NumberObjects(const Internal&, ObjectNumbers& numbers);
  // `treeNode` is the parent in the page tree.
  void WriteObjects(const Internal&, SaveFile& file, Reference treeNode);
  // As numbered by the save in progress.
  Reference ObjectNumber(const Internal&) const { return object_; }
  // Whether the page is one of `pages`, and has been numbered with them.
  bool IsNumberedIn(const Internal&, const std::weak_ptr<PDFPages>& pages) const;

  // Around the page's removal. The first exception that a handler threw is returned. A page whose
  // handlers are being called calls nobody.
  std::exception_ptr RaisePageRemoved(const Internal&);
  void ForgetObjectNumber(const Internal&) { object_ = {}; }

 private:
  void BuildPageObject(PDFText& text, Reference treeNode) const;
  void AppendBoxes(PDFText& text) const;

  MemberKey key_;
  std::weak_ptr<PDFPages> parent_;
  std::shared_ptr<PDFImage> thumbnail_;
  std::shared_ptr<PDFHyperLinks> hyperLinks_;
  Event<PDFPage&> pageRemoved_;
  float width_ = 612;
  float height_ = 792;
  ClipBox clipBox_{-1, -1, -1, -1};
  bool isBeingRemoved_ = false;
  Reference object_;  // none before the first save, and once removed
  Reference content_;
};

}  // namespace folivar
