#pragma once

#include <exception>
#include <utility>

#include "folivar/base/Callback.h"
#include "folivar/base/RingLink.h"

namespace folivar {

class Internal;

// An event that hosts listen to: PDFPage::PageRemoved, say.
//
//   auto subscription = page->PageRemoved().Subscribe([](PDFPage& page) { ... });
//
// Handlers run in the order in which they subscribed. While they run, a handler may unsubscribe
// itself or others, who are then not called any more, subscribe, which counts from the next time
// on, raise the event again, and let go of the event's owner. What a handler throws keeps nobody
// else from being called; the first exception comes out of the member that raised the event, once
// that has done its work.
//
// A list through the subscriptions themselves: an event has no memory of its own, and nothing needs
// to be searched.
template <class... Args>
class Event {
 public:
  // Keeps a handler subscribed for as long as it lives itself; then the handler, and what it
  // captured, goes away. It may outlive the event.
  class [[nodiscard]] Subscription : RingLink {
   public:
    Subscription() = default;
    ~Subscription() { Reset(); }
    Subscription(Subscription&& other) noexcept { Take(other); }
    Subscription& operator=(Subscription&& other) noexcept {
      if (this != &other) {
        Reset();
        Take(other);
      }
      return *this;
    }
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;

    // False when nothing was subscribed, after Reset, and once the event is gone.
    bool IsSubscribed() const { return !IsAlone(); }

    void Reset() {
      Leave();
      // What the handler captured may hold this subscription.
      const Callback<Args...> last = std::move(handler_);
    }

   private:
    friend class Event;

    void Take(Subscription& other) noexcept {
      handler_ = std::move(other.handler_);
      if (other.IsAlone()) return;
      JoinBefore(other);
      other.Leave();
    }

    Callback<Args...> handler_;
  };

  Event() = default;
  ~Event() {
    while (!ring_.IsAlone()) ring_.Next().Leave();
  }
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  // From now on the handler, called as handler(args...), hears of the event. One that captures a
  // single pointer takes no memory.
  template <class Callable>
  Subscription Subscribe(Callable handler) {
    Subscription subscription;
    subscription.handler_ = Callback<Args...>(std::move(handler));
    subscription.JoinBefore(ring_);
    return subscription;
  }

  // For the library

  // Calls the handlers; the event may be gone afterwards. Returns the first exception that one of
  // them threw, null for none.
  [[nodiscard]] std::exception_ptr Raise(const Internal&, Args... args) {
    std::exception_ptr thrown;
    if (ring_.IsAlone()) return thrown;
    Walk walk(ring_);
    while (const Callback<Args...>* const next = walk.Next()) {
      const Callback<Args...> handler = *next;  // its subscription may go away meanwhile
      try {
        handler(args...);
      } catch (...) {
        if (!thrown) thrown = std::current_exception();
      }
    }
    return thrown;
  }

 private:
  // A walk stands in the ring itself, with a mark at its place and one at its end, which are
  // subscriptions without a handler: whatever happens to the other links, and to the ring, the
  // marks have the right neighbours.
  class Walk {
   public:
    explicit Walk(RingLink& ring) {
      place_.JoinBefore(ring.Next());
      end_.JoinBefore(ring);
    }

    // The next handler, null at the end.
    const Callback<Args...>* Next() {
      while (!IsAtEnd()) {
        auto& next = static_cast<Subscription&>(place_.Next());
        place_.Leave();
        place_.JoinBefore(next.Next());
        if (!next.handler_.IsNone()) return &next.handler_;
      }
      return nullptr;
    }

   private:
    // Alone once the event is gone.
    bool IsAtEnd() const { return &place_.Next() == &end_ || place_.IsAlone(); }

    Subscription place_;
    Subscription end_;
  };

  // All other links of the ring are subscriptions.
  RingLink ring_;
};

}  // namespace folivar
