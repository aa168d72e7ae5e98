#include "com/PeerBase.h"

#include <wrl/client.h>

#include <cstdint>
#include <cstring>
#include <utility>

#include "com/Guard.h"
#include "com/Module.h"
#include "com/TypeLibrary.h"
#include "folivar/base/Error.h"

namespace folivar::com {
namespace {

// What a peer answers to with itself. It ends in the address of this DLL, so that it is known to
// nobody else: neither a proxy, nor somebody's own class, nor an object of another copy of the DLL
// in the same process can be taken for a peer.
// 0B39CF01-B325-450F-....-............
IID PeerId() {
  IID id = {0x0B39CF01, 0xB325, 0x450F, {}};
  const auto address = reinterpret_cast<std::uintptr_t>(Module::Handle());
  static_assert(sizeof address <= sizeof id.Data4);
  std::memcpy(id.Data4, &address, sizeof address);
  return id;
}

}  // namespace

PeerBase::PeerBase(const Shared<Object>& object, Document document)
    : object_(object), document_(std::move(document)) {
  Module::CountObject(1);
}

PeerBase::~PeerBase() { Module::CountObject(-1); }

STDMETHODIMP PeerBase::QueryInterface(REFIID iid, void** result) {
  if (result == nullptr) return E_POINTER;
  *result = Find(iid);
  if (*result == nullptr) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

void* PeerBase::Find(REFIID iid) {
  if (iid == IID_IUnknown || iid == IID_IDispatch || iid == InterfaceId()) return ClassInterface();
  if (iid == IID_ISupportErrorInfo) return static_cast<ISupportErrorInfo*>(this);
  if (iid == IID_IProvideClassInfo || iid == IID_IProvideClassInfo2) {
    return static_cast<IProvideClassInfo2*>(this);
  }
  return iid == PeerId() ? this : FindExtra(iid);
}

STDMETHODIMP_(ULONG) PeerBase::AddRef() {
  if (references_ == 0) {
    pinnedDocument_ = document_.lock();
    pinnedObject_ = object_.lock();
    pinnedOwner_ = Owner();
  }
  return ++references_;
}

STDMETHODIMP_(ULONG) PeerBase::Release() {
  const ULONG left = --references_;
  if (left == 0) {
    // With the last of these this peer may go.
    const auto document = std::move(pinnedDocument_);
    const auto owner = std::move(pinnedOwner_);
    const auto object = std::move(pinnedObject_);
  }
  return left;
}

STDMETHODIMP PeerBase::InterfaceSupportsErrorInfo(REFIID iid) {
  return iid == InterfaceId() ? S_OK : S_FALSE;
}

STDMETHODIMP PeerBase::GetClassInfo(ITypeInfo** result) {
  return Guarded(InterfaceId(), [&] {
    RequirePointer(result);
    *result = nullptr;
    *result = TypeLibrary::ClassInfoOf(ClassId());
    (*result)->AddRef();
  });
}

STDMETHODIMP PeerBase::GetGUID(DWORD kind, GUID* result) {
  if (result == nullptr) return E_POINTER;
  *result = EventsId();
  const bool isThere = kind == GUIDKIND_DEFAULT_SOURCE_DISP_IID && *result != GUID_NULL;
  if (!isThere) *result = GUID_NULL;
  return isThere ? S_OK : E_INVALIDARG;
}

Shared<Object> ObjectBehind(IUnknown* pointer) {
  if (pointer == nullptr) return nullptr;
  Microsoft::WRL::ComPtr<PeerBase> peer;
  if (FAILED(pointer->QueryInterface(PeerId(), &peer))) {
    throw Error::TypeMismatch("an object is none of Folivar's");
  }
  return peer->TheObject();
}

}  // namespace folivar::com
