#pragma once

#include <cstdint>
#include <memory>

#include "folivar/base/Api.h"
#include "folivar/base/Object.h"

namespace folivar {

class Internal;
class PDFCatalog;

// How the reader lays pages out when it opens the document.
enum PDFPageLayoutStyle : std::int32_t {
  plsUserDefault = 0,  // writes nothing: the reader decides
  plsSinglePage = 1,
  plsOneColumn = 2,
  plsTwoColumnLeft = 3,   // two columns, odd pages on the left
  plsTwoColumnRight = 4,  // two columns, odd pages on the right
};

// What the reader shows beside the pages when it opens the document.
enum PDFPageModeStyle : std::int32_t {
  pmsUserDefault = 0,  // writes nothing: the reader decides
  pmsUseNone = 1,
  pmsUseOutlines = 2,
  pmsUseThumbs = 3,
  pmsFullScreen = 4,
};

// How a reader should show the document; made with the document, one for each. Nothing is written
// for what was left at its default. No setter checks its value: an enumeration value not listed
// above is kept and writes nothing.
class FOLIVAR_API PDFViewerPreferences final : public Object {
 public:
  // Page layout and page mode live in the document; these four raise 91 when it is gone.
  PDFPageLayoutStyle PageLayout() const;
  void SetPageLayout(PDFPageLayoutStyle layout);
  PDFPageModeStyle PageMode() const;
  void SetPageMode(PDFPageModeStyle mode);

  // All false at first.
  bool HideToolbar() const { return hideToolbar_; }
  void SetHideToolbar(bool hide) { hideToolbar_ = hide; }
  bool HideMenubar() const { return hideMenubar_; }
  void SetHideMenubar(bool hide) { hideMenubar_ = hide; }
  bool HideWindowUI() const { return hideWindowUI_; }
  void SetHideWindowUI(bool hide) { hideWindowUI_ = hide; }
  bool FitWindow() const { return fitWindow_; }
  void SetFitWindow(bool fit) { fitWindow_ = fit; }
  bool CenterWindow() const { return centerWindow_; }
  void SetCenterWindow(bool center) { centerWindow_ = center; }

  // What to show when the reader leaves full screen. pmsFullScreen is stored as pmsUserDefault: it
  // is no mode to fall back to.
  PDFPageModeStyle NonFullScreenPageMode() const { return nonFullScreenPageMode_; }
  void SetNonFullScreenPageMode(PDFPageModeStyle mode);

  // For the library

  PDFViewerPreferences(const Internal&, std::weak_ptr<PDFCatalog> catalog);

 private:
  // `member` is the one that asks, for the text of an error.
  std::shared_ptr<PDFCatalog> Catalog(const char* member) const;

  std::weak_ptr<PDFCatalog> catalog_;
  bool hideToolbar_ = false;
  bool hideMenubar_ = false;
  bool hideWindowUI_ = false;
  bool fitWindow_ = false;
  bool centerWindow_ = false;
  PDFPageModeStyle nonFullScreenPageMode_ = pmsUserDefault;
};

}  // namespace folivar
