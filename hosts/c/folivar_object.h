#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "folivar/base/HostPeer.h"
#include "folivar/base/Object.h"
#include "folivar/document/PDFDocument.h"
#include "hosts/c/Class.h"
#include "hosts/c/Usage.h"
#include "hosts/c/folivar.h"

// What stands for an object of the core beyond the boundary of the C library. The object owns it,
// so it is the same for the object's whole life; while hosts hold it, it holds the object, what the
// object's members need, and the document.
struct folivar_object final : public folivar::HostPeer {
 public:
  folivar_object(const std::shared_ptr<folivar::Object>& object, const folivar::hosts::Class& type,
                 std::weak_ptr<folivar::PDFDocument> document,
                 std::shared_ptr<folivar::hosts::Usage> usage);
  ~folivar_object() override;

  // What stands for `object`, held for a host: made when it is first asked for. `sibling` is an
  // object of the same document.
  template <class Core>
  static folivar_object* HandOut(const std::shared_ptr<Core>& object,
                                 const folivar_object& sibling) {
    if (object->Peer() == nullptr) sibling.MakePeer(object, folivar::hosts::ClassOf<Core>());
    auto* made = static_cast<folivar_object*>(object->Peer());
    made->Hold();
    return made;
  }

  // From whatever thread.
  void Hold();
  void LetGo() noexcept;

  const folivar::hosts::Class& TheClass() const { return type_; }
  folivar::hosts::Usage& TheUsage() const { return *usage_; }
  // These are there while a host holds it.
  const std::shared_ptr<folivar::Object>& TheObject() const { return pins_.object; }
  folivar_object* TheDocument() const {
    return static_cast<folivar_object*>(pins_.document->Peer());
  }
  void** Slot() { return &slot_; }

  // Keeps what a subscription is for as long as it lasts.
  std::int64_t AddSubscription(std::shared_ptr<void> subscription);
  void RemoveSubscription(std::int64_t number);

 private:
  friend class folivar::hosts::Usage;

  struct Pins {
    std::shared_ptr<folivar::PDFDocument> document;  // ends last
    std::shared_ptr<folivar::Object> owner;
    std::shared_ptr<folivar::Object> object;
  };

  struct Subscription {
    std::int64_t number;
    std::shared_ptr<void> held;
  };

  void StopWaiting() noexcept;
  void MakePeer(const std::shared_ptr<folivar::Object>& object,
                const folivar::hosts::Class& type) const;

  const folivar::hosts::Class& type_;
  std::weak_ptr<folivar::Object> object_;
  std::weak_ptr<folivar::PDFDocument> document_;
  std::shared_ptr<folivar::hosts::Usage> usage_;
  std::int64_t holders_ = 0;
  Pins pins_;
  bool isWaiting_ = false;
  folivar_object* nextWaiting_ = nullptr;
  void* slot_ = nullptr;
  std::int64_t lastSubscription_ = 0;
  std::vector<Subscription> subscriptions_;
};
