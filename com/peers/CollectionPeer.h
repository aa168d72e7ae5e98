#pragma once

#include <wrl/client.h>

#include <utility>
#include <vector>

#include "com/ComPrefix.h"
#include "com/Enumerator.h"
#include "com/Peer.h"
#include "folivar/base/Value.h"

namespace folivar::com {

// The peer of a collection; those that can take members out are ShrinkingCollectionPeers, those
// that can move them OrderedCollectionPeers.
template <class Core>
class CollectionPeer : public Peer<Core> {
 public:
  using Member = typename decltype(std::declval<Core>().Item(Value()))::element_type;
  using MemberInterface = typename PeerOf<Member>::Interface;

  using Peer<Core>::Peer;

  STDMETHODIMP Add(BSTR key, VARIANT before, VARIANT after, MemberInterface** result) override {
    return this->Get(result, &Core::Add, key, Index{before}, Index{after});
  }
  STDMETHODIMP get_Item(VARIANT indexOrKey, MemberInterface** result) override {
    return this->Get(result, &Core::Item, Index{indexOrKey});
  }
  STDMETHODIMP get_count(LONG* result) override { return this->Get(result, &Core::count); }
  STDMETHODIMP get_NewEnum(IUnknown** result) override {
    return this->Guard([&] {
      RequirePointer(result);
      *result = nullptr;
      std::vector<Shared<Member>> members;
      for (const Shared<Member>& member : this->TheCore()) members.push_back(member);
      // The walk keeps the collection, and with it what its members need.
      const Microsoft::WRL::ComPtr<CollectionPeer> collection(this);
      const auto give = [collection](const Shared<Member>& member, VARIANT& element) {
        VariantInit(&element);
        element.pdispVal = HandOut(member, collection->TheDocument());
        element.vt = VT_DISPATCH;
      };
      *result = Enumerate<IEnumVARIANT, VARIANT>(std::move(members), give);
    });
  }
  STDMETHODIMP KeyExists(VARIANT indexOrKey, VARIANT_BOOL* result) override {
    return this->Get(result, &Core::template KeyExists<Value>, Index{indexOrKey});
  }
};

template <class Core>
class ShrinkingCollectionPeer : public CollectionPeer<Core> {
 public:
  using CollectionPeer<Core>::CollectionPeer;

  STDMETHODIMP Remove(VARIANT indexOrKey) override {
    return this->Call(&Core::Remove, Index{indexOrKey});
  }
};

template <class Core>
class OrderedCollectionPeer : public ShrinkingCollectionPeer<Core> {
 public:
  using ShrinkingCollectionPeer<Core>::ShrinkingCollectionPeer;

  STDMETHODIMP ReOrder(BSTR key, VARIANT before, VARIANT after) override {
    return this->Call(&Core::template ReOrder<Value, Value>, key, Index{before}, Index{after});
  }
};

}  // namespace folivar::com
