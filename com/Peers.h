#pragma once

#include <memory>
#include <utility>

#include "com/ComPrefix.h"
#include "com/PeerBase.h"
#include "folivar/folivar.h"

namespace folivar::com {

// A new peer, with the interface and the class that it has in the type library.
template <class AnInterface, class AClass>
struct PeerAs {
  using Interface = AnInterface;
  using Class = AClass;

  std::unique_ptr<PeerBase> peer;
};

// The one table of classes: each has a function, in peers/, that makes the peer of an object.
// clang-format off
PeerAs<_PDFBookmark, ::PDFBookmark> MakePeer(const Shared<PDFBookmark>& core, const Document& document);
PeerAs<_PDFBookmarks, ::PDFBookmarks> MakePeer(const Shared<PDFBookmarks>& core, const Document& document);
PeerAs<_PDFDocument, ::PDFDocument> MakePeer(const Shared<PDFDocument>& core, const Document& document);
PeerAs<_PDFFont, ::PDFFont> MakePeer(const Shared<PDFFont>& core, const Document& document);
PeerAs<_PDFFonts, ::PDFFonts> MakePeer(const Shared<PDFFonts>& core, const Document& document);
PeerAs<_PDFGraphicsState, ::PDFGraphicsState> MakePeer(const Shared<PDFGraphicsState>& core, const Document& document);
PeerAs<_PDFHyperLink, ::PDFHyperLink> MakePeer(const Shared<PDFHyperLink>& core, const Document& document);
PeerAs<_PDFHyperLinks, ::PDFHyperLinks> MakePeer(const Shared<PDFHyperLinks>& core, const Document& document);
PeerAs<_PDFImage, ::PDFImage> MakePeer(const Shared<PDFImage>& core, const Document& document);
PeerAs<_PDFImages, ::PDFImages> MakePeer(const Shared<PDFImages>& core, const Document& document);
PeerAs<_PDFLinkDestination, ::PDFLinkDestination> MakePeer(const Shared<PDFLinkDestination>& core, const Document& document);
PeerAs<_PDFPage, ::PDFPage> MakePeer(const Shared<PDFPage>& core, const Document& document);
PeerAs<_PDFPages, ::PDFPages> MakePeer(const Shared<PDFPages>& core, const Document& document);
PeerAs<_PDFTemplate, ::PDFTemplate> MakePeer(const Shared<PDFTemplate>& core, const Document& document);
PeerAs<_PDFTemplates, ::PDFTemplates> MakePeer(const Shared<PDFTemplates>& core, const Document& document);
PeerAs<_PDFTextBox, ::PDFTextBox> MakePeer(const Shared<PDFTextBox>& core, const Document& document);
PeerAs<_PDFTextBoxes, ::PDFTextBoxes> MakePeer(const Shared<PDFTextBoxes>& core, const Document& document);
PeerAs<_PDFViewerPreferences, ::PDFViewerPreferences> MakePeer(const Shared<PDFViewerPreferences>& core, const Document& document);
// clang-format on

// What MakePeer makes for a class of the core.
template <class Core>
using PeerOf = decltype(MakePeer(std::declval<const Shared<Core>&>(), Document()));

// The object's peer, with a reference for the client: made when it is first asked for, and then the
// same for as long as the object lives. Null for null.
template <class Core>
typename PeerOf<Core>::Interface* HandOut(const Shared<Core>& object, const Document& document) {
  if (!object) return nullptr;
  if (object->Peer() == nullptr) object->SetPeer(MakePeer(object, document).peer);
  auto* peer = static_cast<PeerBase*>(object->Peer());
  peer->AddRef();
  return static_cast<typename PeerOf<Core>::Interface*>(peer->ClassInterface());
}

}  // namespace folivar::com
