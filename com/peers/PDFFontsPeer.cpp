#include "com/Peer.h"

namespace folivar::com {
namespace {

class PDFFontsPeer final : public Peer<PDFFonts> {
 public:
  using Peer::Peer;

  STDMETHODIMP Add(BSTR faceName, ::PDFFontType fontType, VARIANT_BOOL embed,
                   _PDFFont** result) override {
    return Get(result, &PDFFonts::Add, faceName, fontType, EmbedFlag{embed});
  }
  STDMETHODIMP get_Item(VARIANT indexOrName, ::PDFFontType fontType, _PDFFont** result) override {
    return Get(result, &PDFFonts::Item, Index{indexOrName}, fontType);
  }
  STDMETHODIMP get_count(::PDFFontType fontType, LONG* result) override {
    return Get(result, &PDFFonts::count, fontType);
  }
  STDMETHODIMP FontExists(BSTR faceName, ::PDFFontType fontType, VARIANT_BOOL* result) override {
    return Get(result, &PDFFonts::FontExists, faceName, fontType);
  }
  STDMETHODIMP AvailableFonts(::PDFFontType fontType, VARIANT_BOOL embeddable,
                              SAFEARRAY** result) override {
    return Get(result, &PDFFonts::AvailableFonts, fontType, EmbedFlag{embeddable});
  }
};

}  // namespace

PeerOf<PDFFonts> MakePeer(const Shared<PDFFonts>& core, const Document& document) {
  return {std::make_unique<PDFFontsPeer>(core, document)};
}

}  // namespace folivar::com
