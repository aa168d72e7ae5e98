#include "hosts/c/folivar_object.h"

#include <algorithm>
#include <mutex>
#include <utility>

using folivar::hosts::Class;
using folivar::hosts::Usage;

folivar_object::folivar_object(const std::shared_ptr<folivar::Object>& object, const Class& type,
                               std::weak_ptr<folivar::PDFDocument> document,
                               std::shared_ptr<Usage> usage)
    : type_(type), object_(object), document_(std::move(document)), usage_(std::move(usage)) {}

folivar_object::~folivar_object() = default;

void folivar_object::MakePeer(const std::shared_ptr<folivar::Object>& object,
                              const Class& type) const {
  object->SetPeer(std::make_unique<folivar_object>(object, type, document_, usage_));
}

void folivar_object::Hold() {
  const std::lock_guard lock(usage_->Holding());
  if (holders_ == 0) {
    pins_.object = object_.lock();
    pins_.owner = type_.owner(*pins_.object);
    pins_.document = document_.lock();
  }
  ++holders_;
}

void folivar_object::LetGo() noexcept {
  // This object may end with its pins.
  const std::shared_ptr<Usage> usage = usage_;
  {
    const std::lock_guard lock(usage->Holding());
    if (--holders_ > 0 || isWaiting_) return;
    usage->LetWait(*this);
    isWaiting_ = true;
  }
  usage->LetGoOfWaiting();
}

void folivar_object::StopWaiting() noexcept {
  Pins last;
  const std::lock_guard lock(usage_->Holding());
  isWaiting_ = false;
  if (holders_ == 0) last = std::move(pins_);
}

std::int64_t folivar_object::AddSubscription(std::shared_ptr<void> subscription) {
  subscriptions_.push_back({lastSubscription_ + 1, std::move(subscription)});
  return ++lastSubscription_;
}

void folivar_object::RemoveSubscription(std::int64_t number) {
  const auto found =
      std::find_if(subscriptions_.begin(), subscriptions_.end(),
                   [&](const Subscription& subscription) { return subscription.number == number; });
  if (found == subscriptions_.end()) return;
  // Letting go of it may run code of the host's, which then finds it gone.
  const Subscription last = std::move(*found);
  subscriptions_.erase(found);
}
