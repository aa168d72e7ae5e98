#pragma once

#include <memory>

#include "com/ComPrefix.h"
#include "com/PeerBase.h"
#include "folivar/folivar.h"

namespace folivar::com {

// The one table of classes: what an object of the core is on the automation interface.

template <class AnInterface, class AClass>
struct AutomationClass {
  using Interface = AnInterface;
  using Class = AClass;
};

template <class Core>
struct Automation;
// clang-format off
template <> struct Automation<PDFBookmark> : AutomationClass<_PDFBookmark, ::PDFBookmark> {};
template <> struct Automation<PDFBookmarks> : AutomationClass<_PDFBookmarks, ::PDFBookmarks> {};
template <> struct Automation<PDFDocument> : AutomationClass<_PDFDocument, ::PDFDocument> {};
template <> struct Automation<PDFFont> : AutomationClass<_PDFFont, ::PDFFont> {};
template <> struct Automation<PDFFonts> : AutomationClass<_PDFFonts, ::PDFFonts> {};
template <> struct Automation<PDFGraphicsState> : AutomationClass<_PDFGraphicsState, ::PDFGraphicsState> {};
template <> struct Automation<PDFHyperLink> : AutomationClass<_PDFHyperLink, ::PDFHyperLink> {};
template <> struct Automation<PDFHyperLinks> : AutomationClass<_PDFHyperLinks, ::PDFHyperLinks> {};
template <> struct Automation<PDFImage> : AutomationClass<_PDFImage, ::PDFImage> {};
template <> struct Automation<PDFImages> : AutomationClass<_PDFImages, ::PDFImages> {};
template <> struct Automation<PDFLinkDestination> : AutomationClass<_PDFLinkDestination, ::PDFLinkDestination> {};
template <> struct Automation<PDFPage> : AutomationClass<_PDFPage, ::PDFPage> {};
template <> struct Automation<PDFPages> : AutomationClass<_PDFPages, ::PDFPages> {};
template <> struct Automation<PDFTemplate> : AutomationClass<_PDFTemplate, ::PDFTemplate> {};
template <> struct Automation<PDFTemplates> : AutomationClass<_PDFTemplates, ::PDFTemplates> {};
template <> struct Automation<PDFTextBox> : AutomationClass<_PDFTextBox, ::PDFTextBox> {};
template <> struct Automation<PDFTextBoxes> : AutomationClass<_PDFTextBoxes, ::PDFTextBoxes> {};
template <> struct Automation<PDFViewerPreferences> : AutomationClass<_PDFViewerPreferences, ::PDFViewerPreferences> {};
// clang-format on

// Makes the peer of an object; in peers/.
std::unique_ptr<PeerBase> MakePeer(const Shared<PDFBookmark>& core, const Document& document);
std::unique_ptr<PeerBase> MakePeer(const Shared<PDFBookmarks>& core, const Document& document);
std::unique_ptr<PeerBase> MakePeer(const Shared<PDFDocument>& core, const Document& document);
std::unique_ptr<PeerBase> MakePeer(const Shared<PDFFont>& core, const Document& document);
std::unique_ptr<PeerBase> MakePeer(const Shared<PDFFonts>& core, const Document& document);
std::unique_ptr<PeerBase> MakePeer(const Shared<PDFGraphicsState>& core, const Document& document);
std::unique_ptr<PeerBase> MakePeer(const Shared<PDFHyperLink>& core, const Document& document);
std::unique_ptr<PeerBase> MakePeer(const Shared<PDFHyperLinks>& core, const Document& document);
std::unique_ptr<PeerBase> MakePeer(const Shared<PDFImage>& core, const Document& document);
std::unique_ptr<PeerBase> MakePeer(const Shared<PDFImages>& core, const Document& document);
std::unique_ptr<PeerBase> MakePeer(const Shared<PDFLinkDestination>& core,
                                   const Document& document);
std::unique_ptr<PeerBase> MakePeer(const Shared<PDFPage>& core, const Document& document);
std::unique_ptr<PeerBase> MakePeer(const Shared<PDFPages>& core, const Document& document);
std::unique_ptr<PeerBase> MakePeer(const Shared<PDFTemplate>& core, const Document& document);
std::unique_ptr<PeerBase> MakePeer(const Shared<PDFTemplates>& core, const Document& document);
std::unique_ptr<PeerBase> MakePeer(const Shared<PDFTextBox>& core, const Document& document);
std::unique_ptr<PeerBase> MakePeer(const Shared<PDFTextBoxes>& core, const Document& document);
std::unique_ptr<PeerBase> MakePeer(const Shared<PDFViewerPreferences>& core,
                                   const Document& document);

// The object's peer, with a reference for the client: made when it is first asked for, and then the
// same for as long as the object lives. Null for null.
template <class Core>
typename Automation<Core>::Interface* HandOut(const Shared<Core>& object,
                                              const Document& document) {
  if (!object) return nullptr;
  if (object->Peer() == nullptr) object->SetPeer(MakePeer(object, document));
  auto* peer = static_cast<PeerBase*>(object->Peer());
  peer->AddRef();
  return static_cast<typename Automation<Core>::Interface*>(peer->ClassInterface());
}

}  // namespace folivar::com
