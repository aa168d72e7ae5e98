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

namespace folivar::com {

// What a client has been given and does not get after all.
inline void TakeBack(VARIANT& element) { VariantClear(&element); }
inline void TakeBack(IConnectionPoint*& element) { std::exchange(element, nullptr)->Release(); }
inline void TakeBack(CONNECTDATA& element) { std::exchange(element.pUnk, nullptr)->Release(); }

// Walks over items as they were when the walk began, so that a loop may add and remove. `Give` is a
// function that puts an item into a client's Element.
template <class Interface, class Element, class Item, class Give>
class Enumerator final : public Interface {
 public:
  using Items = std::shared_ptr<const std::vector<Item>>;

  Enumerator(Items items, Give give, std::size_t next = 0)
      : items_(std::move(items)), give_(std::move(give)), next_(next) {
    Module::CountObject(1);
  }
  Enumerator(const Enumerator&) = delete;
  Enumerator& operator=(const Enumerator&) = delete;

  // IUnknown
  STDMETHODIMP QueryInterface(REFIID iid, void** result) override {
    if (result == nullptr) return E_POINTER;
    const bool isThere = iid == IID_IUnknown || iid == __uuidof(Interface);
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

  // IEnum...
  STDMETHODIMP Next(ULONG wanted, Element* results, ULONG* fetched) override {
    if (fetched != nullptr) *fetched = 0;
    if (results == nullptr || (fetched == nullptr && wanted != 1)) return E_POINTER;
    ULONG given = 0;
    const HRESULT failure = Guarded(__uuidof(Interface), [&] {
      for (; given < wanted && next_ + given < items_->size(); ++given) {
        give_((*items_)[next_ + given], results[given]);
      }
    });
    if (FAILED(failure)) {
      while (given > 0) TakeBack(results[--given]);
      return failure;
    }
    next_ += given;
    if (fetched != nullptr) *fetched = given;
    return given == wanted ? S_OK : S_FALSE;
  }
  STDMETHODIMP Skip(ULONG count) override {
    const std::size_t left = items_->size() - next_;
    next_ += std::min<std::size_t>(count, left);
    return count <= left ? S_OK : S_FALSE;
  }
  STDMETHODIMP Reset() override {
    next_ = 0;
    return S_OK;
  }
  STDMETHODIMP Clone(Interface** result) override {
    return Guarded(__uuidof(Interface), [&] {
      RequirePointer(result);
      *result = nullptr;
      *result = new Enumerator(items_, give_, next_);
      (*result)->AddRef();
    });
  }

 private:
  ~Enumerator() { Module::CountObject(-1); }

  Items items_;
  Give give_;
  std::size_t next_;
  ULONG references_ = 0;
};

// Makes one, with a reference for the client.
template <class Interface, class Element, class Item, class Give>
Interface* Enumerate(std::vector<Item> items, Give give) {
  auto* made = new Enumerator<Interface, Element, Item, Give>(
      std::make_shared<const std::vector<Item>>(std::move(items)), std::move(give));
  made->AddRef();
  return made;
}

}  // namespace folivar::com
