#include "com/Peer.h"

namespace folivar::com {
namespace {

class PDFViewerPreferencesPeer final : public Peer<PDFViewerPreferences> {
 public:
  using Peer::Peer;

  STDMETHODIMP put_PageLayout(::PDFPageLayoutStyle choice) override {
    return Call(&PDFViewerPreferences::SetPageLayout, choice);
  }
  STDMETHODIMP get_PageLayout(::PDFPageLayoutStyle* result) override {
    return Get(result, &PDFViewerPreferences::PageLayout);
  }
  STDMETHODIMP put_PageMode(::PDFPageModeStyle choice) override {
    return Call(&PDFViewerPreferences::SetPageMode, choice);
  }
  STDMETHODIMP get_PageMode(::PDFPageModeStyle* result) override {
    return Get(result, &PDFViewerPreferences::PageMode);
  }
  STDMETHODIMP put_HideToolbar(VARIANT_BOOL flag) override {
    return Call(&PDFViewerPreferences::SetHideToolbar, flag);
  }
  STDMETHODIMP get_HideToolbar(VARIANT_BOOL* result) override {
    return Get(result, &PDFViewerPreferences::HideToolbar);
  }
  STDMETHODIMP put_HideMenubar(VARIANT_BOOL flag) override {
    return Call(&PDFViewerPreferences::SetHideMenubar, flag);
  }
  STDMETHODIMP get_HideMenubar(VARIANT_BOOL* result) override {
    return Get(result, &PDFViewerPreferences::HideMenubar);
  }
  STDMETHODIMP put_HideWindowUI(VARIANT_BOOL flag) override {
    return Call(&PDFViewerPreferences::SetHideWindowUI, flag);
  }
  STDMETHODIMP get_HideWindowUI(VARIANT_BOOL* result) override {
    return Get(result, &PDFViewerPreferences::HideWindowUI);
  }
  STDMETHODIMP put_FitWindow(VARIANT_BOOL flag) override {
    return Call(&PDFViewerPreferences::SetFitWindow, flag);
  }
  STDMETHODIMP get_FitWindow(VARIANT_BOOL* result) override {
    return Get(result, &PDFViewerPreferences::FitWindow);
  }
  STDMETHODIMP put_CenterWindow(VARIANT_BOOL flag) override {
    return Call(&PDFViewerPreferences::SetCenterWindow, flag);
  }
  STDMETHODIMP get_CenterWindow(VARIANT_BOOL* result) override {
    return Get(result, &PDFViewerPreferences::CenterWindow);
  }
  STDMETHODIMP put_NonFullScreenPageMode(::PDFPageModeStyle choice) override {
    return Call(&PDFViewerPreferences::SetNonFullScreenPageMode, choice);
  }
  STDMETHODIMP get_NonFullScreenPageMode(::PDFPageModeStyle* result) override {
    return Get(result, &PDFViewerPreferences::NonFullScreenPageMode);
  }
};

}  // namespace

PeerOf<PDFViewerPreferences> MakePeer(const Shared<PDFViewerPreferences>& core,
                                      const Document& document) {
  return {std::make_unique<PDFViewerPreferencesPeer>(core, document)};
}

}  // namespace folivar::com
