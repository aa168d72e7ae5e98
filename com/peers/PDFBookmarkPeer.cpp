#include "com/peers/TaggedPeer.h"

namespace folivar::com {
namespace {

class PDFBookmarkPeer final : public TaggedPeer<PDFBookmark> {
 public:
  using TaggedPeer::TaggedPeer;

  STDMETHODIMP get_Title(BSTR* result) override { return Get(result, &PDFBookmark::Title); }
  STDMETHODIMP put_Title(BSTR text) override { return Call(&PDFBookmark::SetTitle, text); }
  STDMETHODIMP get_Expanded(VARIANT_BOOL* result) override {
    return Get(result, &PDFBookmark::Expanded);
  }
  STDMETHODIMP put_Expanded(VARIANT_BOOL flag) override {
    return Call(&PDFBookmark::SetExpanded, flag);
  }
  STDMETHODIMP get_SubBookmarks(_PDFBookmarks** result) override {
    return Get(result, &PDFBookmark::SubBookmarks);
  }
  STDMETHODIMP get_Destination(_PDFLinkDestination** result) override {
    return Get(result, &PDFBookmark::Destination);
  }
  STDMETHODIMP get_Key(BSTR* result) override { return Get(result, &PDFBookmark::Key); }
};

}  // namespace

PeerOf<PDFBookmark> MakePeer(const Shared<PDFBookmark>& core, const Document& document) {
  return {std::make_unique<PDFBookmarkPeer>(core, document)};
}

}  // namespace folivar::com
