#include "com/Collections.h"

namespace folivar::com {

std::unique_ptr<PeerBase> MakePeer(const Shared<PDFBookmarks>& core, const Document& document) {
  return std::make_unique<OrderedCollectionPeer<PDFBookmarks>>(core, document);
}

std::unique_ptr<PeerBase> MakePeer(const Shared<PDFHyperLinks>& core, const Document& document) {
  return std::make_unique<ShrinkingCollectionPeer<PDFHyperLinks>>(core, document);
}

std::unique_ptr<PeerBase> MakePeer(const Shared<PDFImages>& core, const Document& document) {
  return std::make_unique<CollectionPeer<PDFImages>>(core, document);
}

std::unique_ptr<PeerBase> MakePeer(const Shared<PDFPages>& core, const Document& document) {
  return std::make_unique<OrderedCollectionPeer<PDFPages>>(core, document);
}

std::unique_ptr<PeerBase> MakePeer(const Shared<PDFTemplates>& core, const Document& document) {
  return std::make_unique<CollectionPeer<PDFTemplates>>(core, document);
}

std::unique_ptr<PeerBase> MakePeer(const Shared<PDFTextBoxes>& core, const Document& document) {
  return std::make_unique<OrderedCollectionPeer<PDFTextBoxes>>(core, document);
}

}  // namespace folivar::com
