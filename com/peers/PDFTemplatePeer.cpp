#include "com/peers/CanvasPeer.h"
#include "com/peers/RegionPeer.h"

namespace folivar::com {
namespace {

class PDFTemplatePeer final : public RegionPeer<CanvasPeer<PDFTemplate>> {
 public:
  using RegionPeer::RegionPeer;

  STDMETHODIMP get_AutoSizeClipBox(VARIANT_BOOL* result) override {
    return Get(result, &PDFTemplate::AutoSizeClipBox);
  }
  STDMETHODIMP put_AutoSizeClipBox(VARIANT_BOOL flag) override {
    return Call(&PDFTemplate::SetAutoSizeClipBox, flag);
  }
  STDMETHODIMP ExpandClipBoxToFitTextBoxes() override {
    return Call(&PDFTemplate::ExpandClipBoxToFitTextBoxes);
  }
};

}  // namespace

PeerOf<PDFTemplate> MakePeer(const Shared<PDFTemplate>& core, const Document& document) {
  return {std::make_unique<PDFTemplatePeer>(core, document)};
}

}  // namespace folivar::com
