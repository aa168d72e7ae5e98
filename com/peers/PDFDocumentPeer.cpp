#include "com/peers/TaggedPeer.h"

namespace folivar::com {
namespace {

class PDFDocumentPeer final : public TaggedPeer<PDFDocument> {
 public:
  using TaggedPeer::TaggedPeer;

  STDMETHODIMP SavePDFFile(BSTR fileName) override {
    return Call(&PDFDocument::SavePDFFile, fileName);
  }
  STDMETHODIMP get_Pages(_PDFPages** result) override { return Get(result, &PDFDocument::Pages); }
  STDMETHODIMP get_Fonts(_PDFFonts** result) override { return Get(result, &PDFDocument::Fonts); }
  STDMETHODIMP get_Templates(_PDFTemplates** result) override {
    return Get(result, &PDFDocument::Templates);
  }
  STDMETHODIMP get_Images(_PDFImages** result) override {
    return Get(result, &PDFDocument::Images);
  }
  STDMETHODIMP get_Bookmarks(_PDFBookmarks** result) override {
    return Get(result, &PDFDocument::Bookmarks);
  }
  STDMETHODIMP get_ViewerPreferences(_PDFViewerPreferences** result) override {
    return Get(result, &PDFDocument::ViewerPreferences);
  }
};

}  // namespace

PeerOf<PDFDocument> MakePeer(const Shared<PDFDocument>& core, const Document& document) {
  return {std::make_unique<PDFDocumentPeer>(core, document)};
}

}  // namespace folivar::com
