#include "com/ClassFactory.h"

#include <wrl/client.h>

#include <memory>

#include "com/Guard.h"
#include "com/HostWarnings.h"
#include "com/Module.h"
#include "com/Peers.h"
#include "folivar/base/Error.h"

namespace folivar::com {

ClassFactory& ClassFactory::Instance() {
  static ClassFactory factory;
  return factory;
}

STDMETHODIMP ClassFactory::QueryInterface(REFIID iid, void** result) {
  if (result == nullptr) return E_POINTER;
  const bool isThere = iid == IID_IUnknown || iid == IID_IClassFactory;
  *result = isThere ? this : nullptr;
  if (!isThere) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

// The results mean no more than "still there".
STDMETHODIMP_(ULONG) ClassFactory::AddRef() {
  Module::CountLock(1);
  return 2;
}

STDMETHODIMP_(ULONG) ClassFactory::Release() {
  Module::CountLock(-1);
  return 1;
}

STDMETHODIMP ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** result) {
  if (result == nullptr) return E_POINTER;
  *result = nullptr;
  if (outer != nullptr) return CLASS_E_NOAGGREGATION;
  HRESULT answer = S_OK;
  const HRESULT failure = Guarded(__uuidof(_PDFDocument), [&] {
    Platform platform;
    platform.warnings = std::make_shared<HostWarnings>();
    const auto document = PDFDocument::Create(std::move(platform));
    Microsoft::WRL::ComPtr<IUnknown> peer;
    // Not Attach, which in mingw-w64 takes a reference of its own.
    *peer.GetAddressOf() = HandOut(document, document);
    answer = peer->QueryInterface(iid, result);
  });
  return FAILED(failure) ? failure : answer;
}

STDMETHODIMP ClassFactory::LockServer(BOOL lock) {
  Module::CountLock(lock != FALSE ? 1 : -1);
  return S_OK;
}

}  // namespace folivar::com
