#include "com/Peer.h"

namespace folivar::com {
namespace {

class PDFLinkDestinationPeer final : public Peer<PDFLinkDestination> {
 public:
  using Peer::Peer;

  STDMETHODIMP get_page(_PDFPage** result) override {
    return Get(result, &PDFLinkDestination::Page);
  }
  STDMETHODIMP putref_page(_PDFPage* object) override {
    return Call(&PDFLinkDestination::SetPage, object);
  }
  STDMETHODIMP put_DestinationMode(::PDFDestinationStyle choice) override {
    return Call(&PDFLinkDestination::SetDestinationMode, choice);
  }
  STDMETHODIMP get_DestinationMode(::PDFDestinationStyle* result) override {
    return Get(result, &PDFLinkDestination::DestinationMode);
  }
  STDMETHODIMP put_Left(float number) override {
    return Call(&PDFLinkDestination::SetLeft, number);
  }
  STDMETHODIMP get_Left(float* result) override { return Get(result, &PDFLinkDestination::Left); }
  STDMETHODIMP put_Right(float number) override {
    return Call(&PDFLinkDestination::SetRight, number);
  }
  STDMETHODIMP get_Right(float* result) override { return Get(result, &PDFLinkDestination::Right); }
  STDMETHODIMP put_Bottom(float number) override {
    return Call(&PDFLinkDestination::SetBottom, number);
  }
  STDMETHODIMP get_Bottom(float* result) override {
    return Get(result, &PDFLinkDestination::Bottom);
  }
  STDMETHODIMP put_Top(float number) override { return Call(&PDFLinkDestination::SetTop, number); }
  STDMETHODIMP get_Top(float* result) override { return Get(result, &PDFLinkDestination::Top); }
  STDMETHODIMP put_Zoom(float number) override {
    return Call(&PDFLinkDestination::SetZoom, number);
  }
  STDMETHODIMP get_Zoom(float* result) override { return Get(result, &PDFLinkDestination::Zoom); }
  STDMETHODIMP SetRegion(float left, float bottom, float width, float height) override {
    return Call(&PDFLinkDestination::SetRegion, left, bottom, width, height);
  }
  STDMETHODIMP get_Width(float* result) override { return Get(result, &PDFLinkDestination::Width); }
  STDMETHODIMP put_Width(float number) override {
    return Call(&PDFLinkDestination::SetWidth, number);
  }
  STDMETHODIMP get_Height(float* result) override {
    return Get(result, &PDFLinkDestination::Height);
  }
  STDMETHODIMP put_Height(float number) override {
    return Call(&PDFLinkDestination::SetHeight, number);
  }
};

}  // namespace

PeerOf<PDFLinkDestination> MakePeer(const Shared<PDFLinkDestination>& core,
                                    const Document& document) {
  return {std::make_unique<PDFLinkDestinationPeer>(core, document)};
}

}  // namespace folivar::com
