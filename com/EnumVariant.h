#pragma once

#include <wrl/client.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "com/ComPrefix.h"
#include "com/Guard.h"
#include "com/Module.h"
#include "com/Peers.h"

namespace folivar::com {

// Walks over the members of a collection as they were when the walk began, so that a loop may add
// and remove. Keeps the document.
template <class Member>
class EnumVariant final : public IEnumVARIANT {
 public:
  using Members = std::shared_ptr<const std::vector<std::shared_ptr<Member>>>;

  EnumVariant(Members members, std::shared_ptr<PDFDocument> document, std::size_t next = 0)
      : members_(std::move(members)), document_(std::move(document)), next_(next) {
    Module::CountObject(1);
  }
  EnumVariant(const EnumVariant&) = delete;
  EnumVariant& operator=(const EnumVariant&) = delete;

  // IUnknown
  STDMETHODIMP QueryInterface(REFIID iid, void** result) override {
    if (result == nullptr) return E_POINTER;
    const bool isThere = iid == IID_IUnknown || iid == IID_IEnumVARIANT;
    *result = isThere ? this : nullptr;
    if (!isThere) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  // IEnumVARIANT
  STDMETHODIMP Next(ULONG wanted, VARIANT* results, ULONG* fetched) override {
    if (fetched != nullptr) *fetched = 0;
    if (results == nullptr || (fetched == nullptr && wanted != 1)) return E_POINTER;
    ULONG given = 0;
    const HRESULT failure = Guarded(IID_IEnumVARIANT, [&] {
      for (; given < wanted && next_ < members_->size(); ++given, ++next_) {
        IDispatch* face = HandOut((*members_)[next_], document_);
        VariantInit(&results[given]);
        results[given].vt = VT_DISPATCH;
        results[given].pdispVal = face;
      }
    });
    if (fetched != nullptr) *fetched = given;
    if (FAILED(failure)) return failure;
    return given == wanted ? S_OK : S_FALSE;
  }
  STDMETHODIMP Skip(ULONG count) override {
    const std::size_t left = members_->size() - next_;
    next_ += std::min<std::size_t>(count, left);
    return count <= left ? S_OK : S_FALSE;
  }
  STDMETHODIMP Reset() override {
    next_ = 0;
    return S_OK;
  }
  STDMETHODIMP Clone(IEnumVARIANT** result) override {
    return Guarded(IID_IEnumVARIANT, [&] {
      RequirePointer(result);
      *result = nullptr;
      Microsoft::WRL::ComPtr<IEnumVARIANT> clone(new EnumVariant(members_, document_, next_));
      *result = clone.Detach();
    });
  }

 private:
  ~EnumVariant() { Module::CountObject(-1); }

  Members members_;
  std::shared_ptr<PDFDocument> document_;
  std::size_t next_;
  ULONG references_ = 0;
};

}  // namespace folivar::com
