#pragma once

#include "com/ComPrefix.h"

namespace folivar::com {

// Makes documents, the one thing that clients create. One for the process, there as long as the DLL
// is loaded: a reference to it is a lock, as one by LockServer is.
class ClassFactory final : public IClassFactory {
 public:
  static ClassFactory& Instance();

  // IUnknown
  STDMETHODIMP QueryInterface(REFIID iid, void** result) override;
  STDMETHODIMP_(ULONG) AddRef() override;
  STDMETHODIMP_(ULONG) Release() override;

  // IClassFactory
  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** result) override;
  STDMETHODIMP LockServer(BOOL lock) override;
};

}  // namespace folivar::com
