#pragma once

#include <memory>

#include "folivar/base/Api.h"
#include "folivar/base/Event.h"
#include "folivar/base/Object.h"
#include "folivar/navigation/PDFDestinationStyle.h"
#include "folivar/navigation/Region.h"

namespace folivar {

class Internal;
class PDFPage;
class PDFPages;
class PDFText;

// A place in the document, a page and how to show it: where a bookmark or a hyperlink leads. It is
// a part of that bookmark or hyperlink, and who holds it holds that too. What DestinationMode does
// not need of the region is not written.
//
// Without a page it leads nowhere, and so it does with a page of another document or one that is in
// no collection any more; the bookmark or link is then written without a destination. A number that
// PDF cannot hold raises 6 when the document is saved.
class FOLIVAR_API PDFLinkDestination final : public Object, public Region<PDFLinkDestination> {
 public:
  // Null at first, and null for none. It becomes null when the page is removed from its document's
  // Pages, moving it with ReOrder included. The page is not kept alive.
  std::shared_ptr<PDFPage> Page() const;
  void SetPage(const std::shared_ptr<PDFPage>& page);

  // dsXYZ at first; not checked.
  PDFDestinationStyle DestinationMode() const { return destinationMode_; }
  void SetDestinationMode(PDFDestinationStyle mode) { destinationMode_ = mode; }

  // As in Region; a measure left out is 0.
  void SetRegion(float left, float bottom, float width = 0, float height = 0) {
    Region::SetRegion(left, bottom, width, height);
  }

  // 1 is full size; 0, as at first, keeps the zoom that the reader has. Not checked.
  float Zoom() const { return zoom_; }
  void SetZoom(float zoom) { zoom_ = zoom; }

  // For the library

  explicit PDFLinkDestination(const Internal&) {}

  // Appends "/Dest " and the destination as an entry of a dictionary, if it leads to one of
  // `pages`.
  void AppendDestination(const Internal&, PDFText& text,
                         const std::weak_ptr<PDFPages>& pages) const;

 private:
  // There as long as the subscription is.
  PDFPage* page_ = nullptr;
  Event<PDFPage&>::Subscription pageRemoved_;
  PDFDestinationStyle destinationMode_ = dsXYZ;
  float zoom_ = 0;
};

}  // namespace folivar
