#pragma once

#include <utility>

#include "com/ComPrefix.h"
#include "com/Guard.h"
#include "com/Peer.h"
#include "com/Variants.h"
#include "folivar/base/Value.h"

namespace folivar::com {

// The peer of an object that carries a tag.
template <class Core, class... Extra>
class TaggedPeer : public Peer<Core, Extra...> {
 public:
  using Peer<Core, Extra...>::Peer;

  STDMETHODIMP get_Tag(VARIANT* result) override {
    return this->Guard([&] {
      RequirePointer(result);
      VariantInit(result);
      CopyTag(this->TheCore().Tag(), result);
    });
  }
  STDMETHODIMP put_Tag(VARIANT tag) override {
    return this->Guard([&] { SetTag(TagFrom(tag)); });
  }
  STDMETHODIMP putref_Tag(VARIANT tag) override {
    return this->Guard([&] { SetTag(ObjectTagFrom(tag)); });
  }

 private:
  // Letting go of the old tag may run code of the client's, which then finds the new one.
  void SetTag(Value tag) {
    const Value old = this->TheCore().Tag();
    this->TheCore().SetTag(std::move(tag));
  }
};

}  // namespace folivar::com
