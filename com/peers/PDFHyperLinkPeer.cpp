#include "com/peers/RegionPeer.h"
#include "com/peers/TaggedPeer.h"

namespace folivar::com {
namespace {

class PDFHyperLinkPeer final : public RegionPeer<TaggedPeer<PDFHyperLink>> {
 public:
  using RegionPeer::RegionPeer;

  STDMETHODIMP get_Destination(_PDFLinkDestination** result) override {
    return Get(result, &PDFHyperLink::Destination);
  }
  STDMETHODIMP get_LinkHighlightAction(::PDFLinkHighlightAction* result) override {
    return Get(result, &PDFHyperLink::LinkHighlightAction);
  }
  STDMETHODIMP put_LinkHighlightAction(::PDFLinkHighlightAction choice) override {
    return Call(&PDFHyperLink::SetLinkHighlightAction, choice);
  }
  STDMETHODIMP SetRegion(float left, float bottom, float width, float height) override {
    return Call(&PDFHyperLink::SetRegion, left, bottom, width, height);
  }
  STDMETHODIMP get_BorderColor(LONG* result) override {
    return Get(result, &PDFHyperLink::BorderColor);
  }
  STDMETHODIMP put_BorderColor(LONG number) override {
    return Call(&PDFHyperLink::SetBorderColor, number);
  }
  STDMETHODIMP get_BorderWidth(float* result) override {
    return Get(result, &PDFHyperLink::BorderWidth);
  }
  STDMETHODIMP put_BorderWidth(float number) override {
    return Call(&PDFHyperLink::SetBorderWidth, number);
  }
  STDMETHODIMP SetBorderDashPattern(float dashOn, float dashOff) override {
    return Call(&PDFHyperLink::SetBorderDashPattern, dashOn, dashOff);
  }
  STDMETHODIMP get_Key(BSTR* result) override { return Get(result, &PDFHyperLink::Key); }
};

}  // namespace

PeerOf<PDFHyperLink> MakePeer(const Shared<PDFHyperLink>& core, const Document& document) {
  return {std::make_unique<PDFHyperLinkPeer>(core, document)};
}

}  // namespace folivar::com
