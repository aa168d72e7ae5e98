#include "com/TaggedPeer.h"

namespace folivar::com {
namespace {

class PDFHyperLinkPeer final : public TaggedPeer<PDFHyperLink> {
 public:
  using TaggedPeer::TaggedPeer;

  STDMETHODIMP put_Left(float number) override { return Call(&PDFHyperLink::SetLeft, number); }
  STDMETHODIMP get_Left(float* result) override { return Get(result, &PDFHyperLink::Left); }
  STDMETHODIMP put_Right(float number) override { return Call(&PDFHyperLink::SetRight, number); }
  STDMETHODIMP get_Right(float* result) override { return Get(result, &PDFHyperLink::Right); }
  STDMETHODIMP put_Bottom(float number) override { return Call(&PDFHyperLink::SetBottom, number); }
  STDMETHODIMP get_Bottom(float* result) override { return Get(result, &PDFHyperLink::Bottom); }
  STDMETHODIMP put_Top(float number) override { return Call(&PDFHyperLink::SetTop, number); }
  STDMETHODIMP get_Top(float* result) override { return Get(result, &PDFHyperLink::Top); }
  STDMETHODIMP get_Width(float* result) override { return Get(result, &PDFHyperLink::Width); }
  STDMETHODIMP put_Width(float number) override { return Call(&PDFHyperLink::SetWidth, number); }
  STDMETHODIMP get_Height(float* result) override { return Get(result, &PDFHyperLink::Height); }
  STDMETHODIMP put_Height(float number) override { return Call(&PDFHyperLink::SetHeight, number); }
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
