#include "com/peers/CollectionPeer.h"

namespace folivar::com {

PeerOf<PDFBookmarks> MakePeer(const Shared<PDFBookmarks>& core, const Document& document) {
  return {std::make_unique<OrderedCollectionPeer<PDFBookmarks>>(core, document)};
}

PeerOf<PDFHyperLinks> MakePeer(const Shared<PDFHyperLinks>& core, const Document& document) {
  return {std::make_unique<ShrinkingCollectionPeer<PDFHyperLinks>>(core, document)};
}

PeerOf<PDFImages> MakePeer(const Shared<PDFImages>& core, const Document& document) {
  return {std::make_unique<CollectionPeer<PDFImages>>(core, document)};
}

PeerOf<PDFPages> MakePeer(const Shared<PDFPages>& core, const Document& document) {
  return {std::make_unique<OrderedCollectionPeer<PDFPages>>(core, document)};
}

PeerOf<PDFTemplates> MakePeer(const Shared<PDFTemplates>& core, const Document& document) {
  return {std::make_unique<CollectionPeer<PDFTemplates>>(core, document)};
}

PeerOf<PDFTextBoxes> MakePeer(const Shared<PDFTextBoxes>& core, const Document& document) {
  return {std::make_unique<OrderedCollectionPeer<PDFTextBoxes>>(core, document)};
}

}  // namespace folivar::com
