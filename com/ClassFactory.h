#pragma once

#include "com/ComPrefix.h"

namespace folivar::com {

// Makes documents, the one thing that clients create. One for the process, which is always there;
// what keeps the DLL loaded is the documents and LockServer.
class ClassFactory final : public IClassFactory {
 public:
  static ClassFactory& Instance();

  // IUnknown
  STDMETHODIMP QueryInterface(REFIID iid, void** result) override;
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }

  // IClassFactory
  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** result) override;
  STDMETHODIMP LockServer(BOOL lock) override;
};

}  // namespace folivar::com
