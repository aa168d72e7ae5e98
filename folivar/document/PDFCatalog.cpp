#include "folivar/document/PDFCatalog.h"

#include <string_view>
#include <utility>

#include "folivar/base/Internal.h"
#include "folivar/document/PDFPages.h"
#include "folivar/file/ObjectNumbers.h"
#include "folivar/file/PDFText.h"
#include "folivar/file/SaveFile.h"
#include "folivar/navigation/PDFOutline.h"

namespace folivar {
namespace {

// Empty for what is not written.

std::string_view PageLayoutLine(PDFPageLayoutStyle layout) {
  switch (layout) {
    case plsSinglePage:
      return "/PageLayout /SinglePage\n";
    case plsOneColumn:
      return "/PageLayout /OneColumn\n";
    case plsTwoColumnLeft:
      return "/PageLayout /TwoColumnLeft\n";
    case plsTwoColumnRight:
      return "/PageLayout /TwoColumnRight\n";
    default:
      return "";
  }
}

std::string_view PageModeLine(PDFPageModeStyle mode) {
  switch (mode) {
    case pmsUseNone:
      return "/PageMode /UseNone\n";
    case pmsUseOutlines:
      return "/PageMode /UseOutlines\n";
    case pmsUseThumbs:
      return "/PageMode /UseThumbs\n";
    case pmsFullScreen:
      return "/PageMode /FullScreen\n";
    default:
      return "";
  }
}

std::string_view NonFullScreenPageModeLine(PDFPageModeStyle mode) {
  switch (mode) {
    case pmsUseOutlines:
      return "/NonFullScreenPageMode /UseOutlines\n";
    case pmsUseThumbs:
      return "/NonFullScreenPageMode /UseThumbs\n";
    default:
      return "";
  }
}

}  // namespace

PDFCatalog::PDFCatalog(std::shared_ptr<PDFOutline> outline, std::shared_ptr<PDFPages> pages)
    : outline_(std::move(outline)), pages_(std::move(pages)) {}

const std::shared_ptr<PDFViewerPreferences>& PDFCatalog::ViewerPreferences() {
  if (!preferences_) {
    preferences_ = std::make_shared<PDFViewerPreferences>(Internal(), Shared<PDFCatalog>());
  }
  return preferences_;
}

void PDFCatalog::NumberObjects(const Internal&, ObjectNumbers& numbers) {
  object_ = numbers.Take();
}

//   1 0 obj
//   << /Type /Catalog
//   /Outlines 2 0 R
//   /Pages 3 0 R
//   /PageLayout /SinglePage
//   /PageMode /UseOutlines
//   /ViewerPreferences <<
//   /FitWindow true
//   >>
//   >>
//   endobj
void PDFCatalog::WriteObjects(const Internal& internal, SaveFile& file) {
  PDFText& text = file.BeginObject(object_);
  text.Append("<< /Type /Catalog\n/Outlines ", outline_->ObjectNumber(), "\n/Pages ",
              pages_->ObjectNumber(internal), "\n", PageLayoutLine(pageLayout_),
              PageModeLine(pageMode_));
  AppendPreferences(text);
  text.Append(">>\n");
  file.EndObject();
}

// Nothing at all when every preference is at its default.
void PDFCatalog::AppendPreferences(PDFText& text) {
  const PDFViewerPreferences& preferences = *ViewerPreferences();
  PDFText body;
  body.Append(preferences.HideToolbar() ? "/HideToolbar true\n" : "",
              preferences.HideMenubar() ? "/HideMenubar true\n" : "",
              preferences.HideWindowUI() ? "/HideWindowUI true\n" : "",
              preferences.FitWindow() ? "/FitWindow true\n" : "",
              preferences.CenterWindow() ? "/CenterWindow true\n" : "",
              NonFullScreenPageModeLine(preferences.NonFullScreenPageMode()));
  if (body.Size() == 0) return;
  text.Append("/ViewerPreferences <<\n", body.Bytes(), ">>\n");
}

}  // namespace folivar
