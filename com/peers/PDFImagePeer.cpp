#include "com/peers/TaggedPeer.h"

namespace folivar::com {
namespace {

class PDFImagePeer final : public TaggedPeer<PDFImage> {
 public:
  using TaggedPeer::TaggedPeer;

  STDMETHODIMP get_Interpolate(VARIANT_BOOL* result) override {
    return Get(result, &PDFImage::Interpolate);
  }
  STDMETHODIMP put_Interpolate(VARIANT_BOOL flag) override {
    return Call(&PDFImage::SetInterpolate, flag);
  }
  STDMETHODIMP get_Key(BSTR* result) override { return Get(result, &PDFImage::Key); }
  STDMETHODIMP put_FileName(BSTR text) override { return Call(&PDFImage::SetFileName, text); }
  STDMETHODIMP get_FileName(BSTR* result) override { return Get(result, &PDFImage::FileName); }
  STDMETHODIMP get_Width(LONG* result) override { return Get(result, &PDFImage::Width); }
  STDMETHODIMP get_Height(LONG* result) override { return Get(result, &PDFImage::Height); }
};

}  // namespace

PeerOf<PDFImage> MakePeer(const Shared<PDFImage>& core, const Document& document) {
  return {std::make_unique<PDFImagePeer>(core, document)};
}

}  // namespace folivar::com
