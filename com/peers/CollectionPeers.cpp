#include "com/peers/CollectionPeer.h"
#include "folivar/base/Internal.h"

namespace folivar::com {
namespace {

class PDFTextBoxesPeer final : public OrderedCollectionPeer<PDFTextBoxes> {
 public:
  using OrderedCollectionPeer::OrderedCollectionPeer;

 protected:
  Shared<Object> Owner() const override { return TheCore().Owner(Internal()); }
};

}  // namespace

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
  return {std::make_unique<PDFTextBoxesPeer>(core, document)};
}

}  // namespace folivar::com
