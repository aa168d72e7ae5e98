#include "com/Peer.h"
#include "com/peers/RegionPeer.h"

namespace folivar::com {
namespace {

class PDFLinkDestinationPeer final : public RegionPeer<Peer<PDFLinkDestination>> {
 public:
  using RegionPeer::RegionPeer;

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
  STDMETHODIMP put_Zoom(float number) override {
    return Call(&PDFLinkDestination::SetZoom, number);
  }
  STDMETHODIMP get_Zoom(float* result) override { return Get(result, &PDFLinkDestination::Zoom); }
  STDMETHODIMP SetRegion(float left, float bottom, float width, float height) override {
    return Call(&PDFLinkDestination::SetRegion, left, bottom, width, height);
  }
};

}  // namespace

PeerOf<PDFLinkDestination> MakePeer(const Shared<PDFLinkDestination>& core,
                                    const Document& document) {
  return {std::make_unique<PDFLinkDestinationPeer>(core, document)};
}

}  // namespace folivar::com
