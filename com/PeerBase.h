#pragma once

#include <memory>

#include "com/ComPrefix.h"
#include "folivar/base/HostPeer.h"
#include "folivar/base/Object.h"
#include "folivar/document/PDFDocument.h"

namespace folivar::com {

template <class Core>
using Shared = std::shared_ptr<Core>;
using Document = std::weak_ptr<PDFDocument>;

// The peer of an object of the core: what clients on the automation interface see of it. Here is
// what does not depend on the object's class.
//
// The object owns its peer, which is therefore the same for the object's whole life, with the tag
// and the listeners that clients gave it. While clients hold references to the peer, it holds the
// object, its owner and its document.
class PeerBase : public HostPeer, public ISupportErrorInfo, public IProvideClassInfo2 {
 public:
  ~PeerBase() override;

  STDMETHODIMP QueryInterface(REFIID iid, void** result) override;
  STDMETHODIMP_(ULONG) AddRef() override;
  STDMETHODIMP_(ULONG) Release() override;
  STDMETHODIMP InterfaceSupportsErrorInfo(REFIID iid) override;
  STDMETHODIMP GetClassInfo(ITypeInfo** result) override;
  STDMETHODIMP GetGUID(DWORD kind, GUID* result) override;

  // The interface of the class, as a client holds it.
  virtual IDispatch* ClassInterface() = 0;

  // There while a client holds a reference.
  const Shared<Object>& TheObject() const { return pinnedObject_; }

 protected:
  PeerBase(const Shared<Object>& object, Document document);

  // Of the class and its interface in the type library.
  virtual const CLSID& ClassId() const = 0;
  virtual const IID& InterfaceId() const = 0;
  // Of its events, if it has some.
  virtual const IID& EventsId() const { return GUID_NULL; }
  // What members of the object need besides it and its document; null for nothing.
  virtual Shared<Object> Owner() const { return nullptr; }
  // A pointer to an interface that only this class has; null for none.
  virtual void* FindExtra(REFIID iid) = 0;

  const Document& TheDocument() const { return document_; }

 private:
  void* Find(REFIID iid);

  std::weak_ptr<Object> object_;
  Document document_;
  ULONG references_ = 0;
  // Held while clients hold references.
  Shared<PDFDocument> pinnedDocument_;
  Shared<Object> pinnedObject_;
  Shared<Object> pinnedOwner_;
};

// The object behind a client's pointer, null for null. Raises 13 when it is no object of this DLL.
Shared<Object> ObjectBehind(IUnknown* pointer);

}  // namespace folivar::com
